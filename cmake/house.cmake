# How every target of the project is built.

add_library(orvane_flags INTERFACE)
target_compile_options(orvane_flags INTERFACE -Wall -Wextra -Wconversion -Werror)
if(WIN32)
  target_compile_definitions(orvane_flags INTERFACE UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX
                             _WIN32_WINNT=0x0601)
  target_link_options(orvane_flags INTERFACE -static $<$<CONFIG:Release>:-s>)
endif()
if(ORVANE_SANITIZE)
  add_compile_options(-O1 -g1 -fno-omit-frame-pointer -fsanitize=address,undefined
                      -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
endif()

# orvane_folder(NAME FOLDER [LINKS target...])
# One static library for the sources directly in src/FOLDER. Its headers are seen as "FOLDER/x.h",
# and only by the targets that link it: an include against the arrows does not build.
function(orvane_folder name folder)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "LINKS")
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${folder}/*.cpp)
  string(REGEX REPLACE "/.*" "" top ${folder})
  set(view ${CMAKE_SOURCE_DIR}/build/include/${top})
  file(MAKE_DIRECTORY ${view})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${top} ${view}/${top} SYMBOLIC)
  if(sources)
    add_library(orvane_${name} STATIC ${sources})
    target_include_directories(orvane_${name} PUBLIC ${view})
    target_link_libraries(orvane_${name} PUBLIC ${arg_LINKS} PRIVATE orvane_flags)
  else()
    add_library(orvane_${name} INTERFACE)
    target_include_directories(orvane_${name} INTERFACE ${view})
    target_link_libraries(orvane_${name} INTERFACE ${arg_LINKS})
  endif()
endfunction()
