// The few calls of the Windows API that the add-in makes, for systems that are not Windows. Names, types and behaviour
// are those of the documented API; anything else is left out on purpose, so that using it does not compile here.
#pragma once

#include <cstddef>

using BOOL = int;
using UINT = unsigned int;
using DWORD = unsigned int;
using INT = int;
using LPVOID = void*;
using LPSTR = char*;
using LPCSTR = const char*;
using LPWSTR = wchar_t*;
using LPCWSTR = const wchar_t*;
using LPBOOL = BOOL*;
using HINSTANCE = struct HINSTANCE__*;
using HMODULE = HINSTANCE;
using HWND = struct HWND__*;
using HCURSOR = struct HICON__*;

#define WINAPI
#define APIENTRY
#define TRUE 1
#define FALSE 0
#define MAX_PATH 260
#define CP_ACP 0
#define WC_NO_BEST_FIT_CHARS 0x00000400
#define DLL_PROCESS_ATTACH 1
#define DLL_PROCESS_DETACH 0
#define SW_SHOWNORMAL 1
#define IDC_ARROW (reinterpret_cast<LPCSTR>(static_cast<std::size_t>(32512)))
#define IDC_WAIT (reinterpret_cast<LPCSTR>(static_cast<std::size_t>(32514)))

extern "C" {

/// Called by the system's start-up code when the module is loaded and unloaded; defined by the module.
BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved);

/// Full path of a loaded module, cut to the buffer (with its NUL) when that is too small; gives the characters written.
DWORD GetModuleFileNameW(HMODULE module, LPWSTR name, DWORD size);

/// The "ANSI" code page is UTF-8 here, in which every character is itself, whatever the flags. With `size` 0 gives the
/// size needed; -1 as length means up to the NUL, included.
int WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR wide, int wideLength, LPSTR narrow, int size,
                        LPCSTR defaultChar, LPBOOL usedDefaultChar);
int MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR narrow, int narrowLength, LPWSTR wide, int size);

/// One of the system's cursors, for no instance.
HCURSOR LoadCursorA(HINSTANCE instance, LPCSTR name);
/// Makes a cursor current and gives the one before.
HCURSOR SetCursor(HCURSOR cursor);
/// Raises or lowers the display count and gives the new one.
int ShowCursor(BOOL show);

/// Opens a file with the program that belongs to it; above 32 on success, else an error number (2: not found, 31: the
/// program knows no such operation).
HINSTANCE ShellExecuteA(HWND window, LPCSTR operation, LPCSTR file, LPCSTR parameters, LPCSTR directory, INT show);

}  // extern "C"
