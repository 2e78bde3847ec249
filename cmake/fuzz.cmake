# Fuzz targets: one program for each fuzz/fuzz_<what>.cpp, with libFuzzer and the address and
# undefined-behaviour sanitizers over all of our code. Needs clang:
#   cmake -S . -B build/fuzz -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DOMBREL_FUZZ=ON
#   ninja -C build/fuzz fuzz_cob
#   build/fuzz/fuzz_cob -max_total_time=300 -dict=fuzz/cob.dict build/fuzz/found fuzz/corpus/cob
# To be included before the first library, so that all of them are instrumented.
option(OMBREL_FUZZ "Build the fuzz targets (clang only)" OFF)
if(NOT OMBREL_FUZZ)
  return()
endif()
if(NOT CMAKE_CXX_COMPILER_ID MATCHES Clang)
  message(FATAL_ERROR "The fuzz targets need clang: -DCMAKE_CXX_COMPILER=clang++")
endif()

add_compile_options(-g -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all
                    -fno-omit-frame-pointer)
add_link_options(-fsanitize=address,undefined)

# Runs when all targets are known.
function(ombrel_fuzz_targets)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/fuzz/fuzz_*.cpp)
  foreach(source ${sources})
    get_filename_component(name ${source} NAME_WE)
    add_executable(${name} EXCLUDE_FROM_ALL ${source})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/fuzz)
    target_compile_definitions(${name} PRIVATE OMBREL_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE ombrel_flags ombrel_app ombrel_platform_offscreen)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
  endforeach()
endfunction()
cmake_language(DEFER DIRECTORY ${CMAKE_SOURCE_DIR} CALL ombrel_fuzz_targets)
