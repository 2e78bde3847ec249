# Programs, tests and benchmarks of the native build.
find_package(PkgConfig REQUIRED)
pkg_check_modules(SDL2 REQUIRED sdl2)
find_library(MP3_LIBRARY NAMES libmp3lame.a REQUIRED) # its decoder is linked in
find_package(PNG REQUIRED)

ombrel_back_end(offscreen SOFT)
include(cmake/icon.cmake)
ombrel_back_end(sdl2 SOFT ${MP3_LIBRARY} ${CMAKE_DL_LIBS} m)
target_sources(ombrel_platform_sdl2 PRIVATE ${ICON_SOURCE})
# Of SDL2 only the headers: the library is opened when the program runs.
target_include_directories(ombrel_platform_sdl2 SYSTEM PUBLIC ${SDL2_INCLUDE_DIRS})

# A program of ours: its main file and the libraries behind it, the back end last.
function(ombrel_program name source)
  file(GLOB more CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tools/${name}/*.cpp)
  add_executable(${name} ${source} ${more})
  target_link_libraries(${name} PRIVATE ombrel_flags ${ARGN})
endfunction()

ombrel_program(larkfen src/app/entry_sdl2.cpp ombrel_app ombrel_demo ombrel_platform_sdl2)
if(NOT OMBREL_SANITIZE)
  # It needs nothing but the C library, and shows nothing of its own to the libraries that it opens.
  target_link_options(larkfen PRIVATE -static-libstdc++ -static-libgcc LINKER:--exclude-libs,ALL
                                      LINKER:--gc-sections)
endif()
ombrel_program(larkfen-capture tools/capture.cpp ombrel_app ombrel_player ombrel_demo
               ombrel_platform_offscreen PNG::PNG)
ombrel_program(larkfen-gallery tools/gallery.cpp ombrel_app ombrel_demo ombrel_platform_offscreen PNG::PNG)
ombrel_program(larkfen-inspect tools/inspect.cpp ombrel_app ombrel_demo ombrel_platform_offscreen PNG::PNG)
# The recorder of the archives, which needs nothing but the C library and so stores its PNG files as
# they are.
file(GLOB capture_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tools/larkfen-capture/*.cpp)
add_executable(larkfen-hashes tools/capture.cpp ${capture_sources})
target_compile_definitions(larkfen-hashes PRIVATE OMBREL_WITHOUT_PNG)
target_link_libraries(larkfen-hashes PRIVATE ombrel_flags ombrel_app ombrel_player ombrel_demo
                                             ombrel_platform_offscreen)
if(NOT OMBREL_SANITIZE)
  target_link_options(larkfen-hashes PRIVATE -static-libstdc++ -static-libgcc LINKER:--gc-sections)
endif()
# The player draws off screen and shows the pictures itself: of the SDL2 back end it takes the table of
# calls and the decoder. The inspector tells it what is wrong with a file. Like the production it needs
# nothing but the C library.
ombrel_program(larkfen-player tools/player.cpp ombrel_app ombrel_player ombrel_demo
               ombrel_platform_offscreen ${MP3_LIBRARY} ${CMAKE_DL_LIBS} m)
target_compile_definitions(larkfen-player PRIVATE OMBREL_WITHOUT_PNG)
if(NOT OMBREL_SANITIZE)
  target_link_options(larkfen-player PRIVATE -static-libstdc++ -static-libgcc LINKER:--exclude-libs,ALL
                                             LINKER:--gc-sections)
endif()
target_include_directories(larkfen-player PRIVATE tools)
target_include_directories(larkfen-player SYSTEM PRIVATE ${SDL2_INCLUDE_DIRS})
foreach(source picture processor production published)
  target_sources(larkfen-player PRIVATE ${CMAKE_SOURCE_DIR}/tools/larkfen-capture/${source}.cpp)
endforeach()
foreach(source mp3_stream quiet say sdl2_calls x11)
  target_sources(larkfen-player PRIVATE ${CMAKE_SOURCE_DIR}/src/platform/sdl2/${source}.cpp)
endforeach()
foreach(source fillers folder image list object object_walk report sound track)
  target_sources(larkfen-player PRIVATE ${CMAKE_SOURCE_DIR}/tools/larkfen-inspect/${source}.cpp)
endforeach()
# The inspector's pictures are lettered and written as those of the other tools.
target_sources(larkfen-inspect PRIVATE ${CMAKE_SOURCE_DIR}/tools/larkfen-gallery/tiny_font.cpp
                                       ${CMAKE_SOURCE_DIR}/tools/larkfen-capture/picture.cpp)

if(OMBREL_TESTS)
  enable_testing()
  add_subdirectory(tests)
endif()
if(OMBREL_BENCH)
  find_package(benchmark REQUIRED)
  file(GLOB bench_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/bench/*.cpp)
  add_executable(larkfen-bench EXCLUDE_FROM_ALL ${bench_sources} tools/larkfen-capture/published.cpp)
  target_include_directories(larkfen-bench PRIVATE tools)
  target_link_libraries(larkfen-bench PRIVATE ombrel_flags ombrel_app ombrel_player ombrel_demo
                                              ombrel_platform_offscreen benchmark::benchmark)
  # Other renderers on the same triangles, where their libraries are: ninja larkfen-peers.
  pkg_check_modules(ALLEGRO4 QUIET IMPORTED_TARGET allegro)
  pkg_check_modules(OSMESA QUIET IMPORTED_TARGET osmesa)
  if(ALLEGRO4_FOUND AND OSMESA_FOUND)
    file(GLOB compare_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/bench/compare*.cpp)
    add_executable(larkfen-peers EXCLUDE_FROM_ALL bench/peers/peers.cpp bench/face_scene.cpp
                                                  bench/fill_scene.cpp ${compare_sources})
    target_include_directories(larkfen-peers PRIVATE bench)
    target_link_libraries(larkfen-peers PRIVATE ombrel_flags ombrel_app ombrel_demo
                                                ombrel_platform_offscreen PkgConfig::ALLEGRO4
                                                PkgConfig::OSMESA)
  endif()
endif()

include(cmake/install.cmake)

# --- the release: cmake --build --preset package makes the three archives in build/package/ ---------
add_custom_target(packages COMMAND ${CMAKE_SOURCE_DIR}/tools/package.py DEPENDS larkfen larkfen-hashes
                                                                          larkfen-player release_files
                  USES_TERMINAL
                  VERBATIM)

# The video beside the archives: cmake --build --preset video; a second call goes on where one broke off.
set(package_folder ${CMAKE_BINARY_DIR}/../package)
add_custom_target(video COMMAND ${CMAKE_COMMAND} -E make_directory ${package_folder}
                        COMMAND larkfen-capture -w --scale 4 --fps 60 --resume
                                --video ${package_folder}/ombrel.mp4
                  USES_TERMINAL VERBATIM)
