# larkfen.exe and the programs of its tests, cross-built with mingw-w64. Everything is static; only
# DLLs of the system are imported. No time goes into the files, so that two builds are the same.
enable_language(RC)
add_link_options(-static -s -Wl,--no-insert-timestamp)

ombrel_back_end(offscreen SOFT)
ombrel_back_end(win32 OWN ddraw dxguid winmm gdi32 user32)

# The data stands beside the program, as it ships.
file(CREATE_LINK ${CMAKE_SOURCE_DIR}/data ${CMAKE_BINARY_DIR}/data SYMBOLIC)

if(TARGET ombrel_app AND EXISTS ${CMAKE_SOURCE_DIR}/src/app/shell.cpp)
  add_executable(larkfen WIN32 src/app/entry_win32.cpp src/platform/win32/larkfen.rc)
  target_link_libraries(larkfen PRIVATE ombrel_flags ombrel_app ombrel_demo ombrel_platform_win32)
endif()

add_subdirectory(tests/windows)
