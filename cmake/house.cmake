# How every target of the project is built.

add_library(orvane_flags INTERFACE)
target_compile_options(orvane_flags INTERFACE -Wall -Wextra -Wconversion -Werror)
if(WIN32)
  target_compile_definitions(orvane_flags INTERFACE UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX
                             _WIN32_WINNT=0x0601)
  # Through precompiled headers g++ 12 forgets that wchar.h is the system's, and warns of its memcpy.
  target_compile_options(orvane_flags INTERFACE -Wno-array-bounds -Wno-stringop-overread -Wno-stringop-overflow
                         -Wno-restrict)
  # What nothing reaches does not come along.
  target_compile_options(orvane_flags INTERFACE -ffunction-sections -fdata-sections)
  target_link_options(orvane_flags INTERFACE -static -Wl,--gc-sections $<$<CONFIG:Release>:-s>)
endif()
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
# What only tests are made of: undefined behaviour is looked for in the product, and checking it in
# GoogleTest's assertions takes half of their compilation.
add_library(orvane_test_flags INTERFACE)
target_link_libraries(orvane_test_flags INTERFACE orvane_flags gtest)
if(ORVANE_SANITIZE)
  target_compile_options(orvane_test_flags INTERFACE -fno-sanitize=undefined)
elseif(WIN32)
  target_compile_options(orvane_test_flags INTERFACE -O1)
endif()
if(ORVANE_SANITIZE)
  add_compile_options(-O1 -g1 -fno-omit-frame-pointer -fsanitize=address,undefined
                      -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
elseif(ORVANE_FUZZ)
  add_compile_options(-O1 -g1 -fno-omit-frame-pointer -fsanitize=fuzzer-no-link,address,undefined
                      -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
endif()

# What nearly every source reads, read once: the standard library, for Windows its big header, and for
# tests GoogleTest. Every source still includes what it uses:
# clang-tidy reads them without these headers.
set(orvane_common_headers <algorithm> <array> <cstdint> <functional> <map> <memory> <optional> <span> <string>
                          <string_view> <utility> <variant> <vector>)
if(WIN32)
  list(APPEND orvane_common_headers <windows.h>)
endif()

# orvane_precompiled(NAME [LINKS target...] HEADERS header...)
# Headers that other targets take with target_precompile_headers(... REUSE_FROM NAME).
function(orvane_precompiled name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS;HEADERS")
  add_library(${name} OBJECT ${CMAKE_SOURCE_DIR}/cmake/precompiled.cpp)
  target_link_libraries(${name} PRIVATE ${arg_LINKS} orvane_flags)
  target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()
orvane_precompiled(orvane_precompiled_core HEADERS ${orvane_common_headers})

# Header-only libraries of the machine that builds, also for Windows programs; a view of their own keeps
# the machine's other headers out.
function(orvane_headers name folder)
  if(NOT EXISTS /usr/include/${folder})
    message(FATAL_ERROR "/usr/include/${folder} is missing: tools/common.sh names the package")
  endif()
  set(view ${CMAKE_SOURCE_DIR}/build/include/${name})
  file(MAKE_DIRECTORY ${view})
  file(CREATE_LINK /usr/include/${folder} ${view}/${folder} SYMBOLIC)
  add_library(orvane_${name} INTERFACE)
  target_include_directories(orvane_${name} SYSTEM INTERFACE ${view})
endfunction()
orvane_headers(json nlohmann)

# orvane_folder(NAME FOLDER [LINKS target...])
# One static library for the sources directly in src/FOLDER. Its headers are seen as "FOLDER/x.h",
# and only by the targets that link it: an include against the arrows does not build.
function(orvane_folder name folder)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "LINKS")
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${folder}/*.cpp)
  set(view ${CMAKE_SOURCE_DIR}/build/include/${folder})
  file(MAKE_DIRECTORY ${view})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${folder} ${view}/${folder} SYMBOLIC)
  if(sources)
    add_library(orvane_${name} STATIC ${sources})
    target_include_directories(orvane_${name} PUBLIC ${view})
    target_link_libraries(orvane_${name} PUBLIC ${arg_LINKS} PRIVATE orvane_flags)
    target_precompile_headers(orvane_${name} REUSE_FROM orvane_precompiled_core)
  else()
    add_library(orvane_${name} INTERFACE)
    target_include_directories(orvane_${name} INTERFACE ${view})
    target_link_libraries(orvane_${name} INTERFACE ${arg_LINKS})
  endif()
endfunction()
