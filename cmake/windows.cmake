# larkfen.exe, cross-built with mingw-w64.
ombrel_library(platform/win32 ombrel_platform)
