#include <windows.h>

#include "qballg/cp1252.h"

#include <atomic>
#include <cstdio>
#include <string>

namespace {
std::atomic<qbMessageHandler> currentHandler{&qbDefaultMessageHandler};
}

int qbDefaultMessageHandler(void*, const char* text, const char* caption, unsigned) {
    std::string line = cp1252ToUtf8(caption ? caption : "") + ": " + cp1252ToUtf8(text ? text : "") + "\n";
    std::fputs(line.c_str(), stderr);
    return IDOK;
}

int MessageBoxA(void* parent, const char* text, const char* caption, unsigned type) {
    return currentHandler.load()(parent, text, caption, type);
}

qbMessageHandler qbSetMessageHandler(qbMessageHandler handler) {
    return currentHandler.exchange(handler ? handler : &qbDefaultMessageHandler);
}

BOOL DisableThreadLibraryCalls(HMODULE) { return 1; }
