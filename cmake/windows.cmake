# larkfen.exe and the programs of its tests, cross-built with mingw-w64. Everything is static; only
# DLLs of the system are imported. No time goes into the files, so that two builds are the same.
enable_language(RC)
add_link_options(-static -s -Wl,--no-insert-timestamp)

ombrel_back_end(offscreen SOFT)
ombrel_back_end(win32 OWN ddraw dxguid winmm gdi32 user32)

# The data stands beside the program, as it ships.
if(NOT EXISTS ${CMAKE_BINARY_DIR}/data)
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/data ${CMAKE_BINARY_DIR}/data SYMBOLIC)
endif()

# Its resources state the version in their own way.
string(REPLACE "." ", " windows_version "${PROJECT_VERSION}.0")
set(resources ${CMAKE_BINARY_DIR}/resources)
foreach(file larkfen.rc larkfen.manifest)
  configure_file(${CMAKE_SOURCE_DIR}/src/platform/win32/${file}.in ${resources}/${file} @ONLY)
endforeach()
set_property(SOURCE ${resources}/larkfen.rc PROPERTY OBJECT_DEPENDS
             "${resources}/larkfen.manifest;${CMAKE_SOURCE_DIR}/src/platform/win32/larkfen.ico")

add_executable(larkfen WIN32 src/app/entry_win32.cpp ${resources}/larkfen.rc)
target_include_directories(larkfen PRIVATE ${resources}) # of the manifest
target_link_libraries(larkfen PRIVATE ombrel_flags ombrel_app ombrel_demo ombrel_platform_win32)

# The recorder without pictures and video: writes the digest lines of the frames on Windows.
file(GLOB capture_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tools/larkfen-capture/*.cpp)
add_executable(larkfen-hashes tools/capture.cpp ${capture_sources})
target_link_libraries(larkfen-hashes PRIVATE ombrel_flags ombrel_app ombrel_player ombrel_demo
                                             ombrel_platform_offscreen)

add_subdirectory(tests/windows)
