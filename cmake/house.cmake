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
  target_link_options(orvane_flags INTERFACE -static -Wl,--gc-sections -Wl,--no-insert-timestamp)
  # Symbols for a file beside what is delivered; the same bytes wherever it is built.
  target_compile_options(orvane_flags INTERFACE $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-g1
                         -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.>)
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
  target_link_options(orvane_test_flags INTERFACE -s)
endif()
if(ORVANE_SANITIZE)
  add_compile_options(-O1 -g1 -fno-omit-frame-pointer -fsanitize=${ORVANE_SANITIZE}
                      -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=${ORVANE_SANITIZE})
  if(ORVANE_SANITIZE STREQUAL "thread")  # g++ 12 inlines half of a test's own operators new and delete
    target_compile_options(orvane_test_flags INTERFACE -Wno-mismatched-new-delete)
  endif()
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
orvane_headers(cli CLI)

# orvane_small(TARGET): in a Windows program this one is built for size rather than speed, since it runs
# when an entry was chosen and not while a menu waits to appear, or is little more than Windows' calls.
if(WIN32)
  add_library(orvane_size INTERFACE)
  target_compile_options(orvane_size INTERFACE -Os)
  orvane_precompiled(orvane_precompiled_small LINKS orvane_size HEADERS ${orvane_common_headers})
endif()
function(orvane_small target)
  if(WIN32)
    target_link_libraries(${target} PRIVATE orvane_size)
    set_target_properties(${target} PROPERTIES PRECOMPILE_HEADERS_REUSE_FROM orvane_precompiled_small)
  endif()
endfunction()

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

# What is delivered: a Windows program or DLL keeps its debug symbols in a file beside it, and is signed
# when there is a certificate (tools/sign says more).
set(ORVANE_CERTIFICATE "" CACHE FILEPATH "PKCS#12 file to sign programs with; empty: they are not signed")
if(ORVANE_CERTIFICATE)
  set(orvane_sign COMMAND ${CMAKE_SOURCE_DIR}/tools/sign ${ORVANE_CERTIFICATE})
endif()
function(orvane_delivered target)
  if(WIN32)
    set(file $<TARGET_FILE:${target}>)
    set(sign ${orvane_sign})
    if(sign)
      list(APPEND sign ${file})
    endif()
    add_custom_command(TARGET ${target} POST_BUILD
                       COMMAND ${CMAKE_OBJCOPY} --only-keep-debug ${file} ${file}.debug
                       COMMAND ${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=0
                               ${CMAKE_OBJCOPY} --strip-all --add-gnu-debuglink=${file}.debug ${file}
                       ${sign})
  endif()
endfunction()
