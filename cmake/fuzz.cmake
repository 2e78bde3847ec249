# Fuzz targets: one program for each fuzz/fuzz_<what>.cpp, with libFuzzer and the address and
# undefined-behaviour sanitizers over all of our code. Needs clang: the preset sanitize; tools/fuzz.py
# runs them. To be included before the first library, so that all of them are instrumented.
option(OMBREL_FUZZ "Build the fuzz targets (clang only)" OFF)
if(NOT OMBREL_FUZZ)
  return()
endif()
if(NOT CMAKE_CXX_COMPILER_ID MATCHES Clang)
  message(FATAL_ERROR "The fuzz targets need clang: -DCMAKE_CXX_COMPILER=clang++")
endif()

if(NOT OMBREL_SANITIZE)
  message(FATAL_ERROR "The fuzz targets find little without sanitizers: -DOMBREL_SANITIZE=address,undefined")
endif()

add_compile_options(-fsanitize=fuzzer-no-link,float-cast-overflow)

# Runs when all targets are known.
function(ombrel_fuzz_targets)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/fuzz/fuzz_*.cpp)
  foreach(source ${sources})
    get_filename_component(name ${source} NAME_WE)
    add_executable(${name} ${source})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/fuzz ${CMAKE_SOURCE_DIR}/tests)
    target_compile_definitions(${name} PRIVATE OMBREL_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE ombrel_flags ombrel_app ombrel_demo ombrel_platform_offscreen)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    list(APPEND names ${name})
  endforeach()
  add_custom_target(fuzz_targets DEPENDS ${names})
  target_sources(fuzz_draw PRIVATE ${CMAKE_SOURCE_DIR}/tests/support/guard_memory.cpp)
endfunction()
cmake_language(DEFER DIRECTORY ${CMAKE_SOURCE_DIR} CALL ombrel_fuzz_targets)
