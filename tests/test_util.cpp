#include "test_util.h"

#include <unistd.h>

int qbtest::TempFile::processId() { return static_cast<int>(::getpid()); }
