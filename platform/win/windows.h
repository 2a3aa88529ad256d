// The few Windows calls the forms make, for Linux. A message box goes to a replaceable handler; the
// default handler writes caption and text, converted to UTF-8, to stderr.
#pragma once

typedef void* HWND;
typedef void* HINSTANCE;
typedef HINSTANCE HMODULE;
typedef int BOOL;
typedef unsigned long DWORD;
typedef unsigned int UINT;

#define MB_OK 0x00000000u
#define MB_ICONERROR 0x00000010u
#define MB_ICONHAND MB_ICONERROR
#define IDOK 1

// parent window, text and caption in Windows-1252, type as MB_... flags; returns the button pressed.
int MessageBoxA(void* parent, const char* text, const char* caption, unsigned type);
BOOL DisableThreadLibraryCalls(HMODULE module);

typedef int (*qbMessageHandler)(void* parent, const char* text, const char* caption, unsigned type);
// Installs handler (null restores the default) and returns the previous one.
qbMessageHandler qbSetMessageHandler(qbMessageHandler handler);
// The default handler: "caption: text" in UTF-8 on stderr; returns IDOK.
int qbDefaultMessageHandler(void* parent, const char* text, const char* caption, unsigned type);
