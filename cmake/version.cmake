# The commit that is built: ORVANE_COMMIT, "unknown" without git, with "+" when files differ from it.
# Asked for again when a commit is made; -D ORVANE_COMMIT=... says it where there is no repository.
if(NOT ORVANE_COMMIT)
  set(commit unknown)
  find_package(Git QUIET)
  if(Git_FOUND)
    execute_process(COMMAND ${GIT_EXECUTABLE} -C ${CMAKE_SOURCE_DIR} describe --always --abbrev=12 --exclude=* --dirty=+
                    OUTPUT_VARIABLE commit OUTPUT_STRIP_TRAILING_WHITESPACE RESULT_VARIABLE failed ERROR_QUIET)
    execute_process(COMMAND ${GIT_EXECUTABLE} -C ${CMAKE_SOURCE_DIR} rev-parse --git-path logs/HEAD
                    OUTPUT_VARIABLE log OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    cmake_path(ABSOLUTE_PATH log BASE_DIRECTORY ${CMAKE_SOURCE_DIR})
    if(failed)
      set(commit unknown)
    elseif(EXISTS ${log})
      set_property(DIRECTORY ${CMAKE_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${log})
    endif()
  endif()
  set(ORVANE_COMMIT ${commit})
endif()

# For resource scripts: #include "Version.h".
configure_file(${CMAKE_CURRENT_LIST_DIR}/Version.h.in ${CMAKE_BINARY_DIR}/version/Version.h)

# orvane_version_resource(TARGET NAME DESCRIPTION): for the program NAME.exe.
function(orvane_version_resource target name description)
  if(WIN32)
    set(script ${CMAKE_BINARY_DIR}/version/${name}.rc)
    configure_file(${CMAKE_SOURCE_DIR}/cmake/program.rc.in ${script})
    set_source_files_properties(${script} PROPERTIES INCLUDE_DIRECTORIES ${CMAKE_BINARY_DIR}/version
                                OBJECT_DEPENDS ${CMAKE_BINARY_DIR}/version/Version.h)
    target_sources(${target} PRIVATE ${script})
  endif()
endfunction()
