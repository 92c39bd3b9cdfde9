// The Windows calls, without the macros that are names of ours elsewhere.
#pragma once

#include <windows.h>

#undef MessageBox
#undef TEXT
