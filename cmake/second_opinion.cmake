# Has clang compile every C++ file of a target for the same Windows, warnings as errors, and
# clang-tidy apply the checks of .clang-tidy. Each file is read again only when it or what it
# includes has changed.
if(TESSALINE_SECOND_OPINION)
  find_program(CLANGXX clang++ REQUIRED)
  find_program(CLANG_TIDY clang-tidy REQUIRED)
  execute_process(
    COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=include/c++
    OUTPUT_VARIABLE libstdcxx OUTPUT_STRIP_TRAILING_WHITESPACE)
  list(TRANSFORM TESSALINE_INCLUDES PREPEND -I OUTPUT_VARIABLE includes)
  list(TRANSFORM TESSALINE_DEFINITIONS PREPEND -D OUTPUT_VARIABLE definitions)
  set(TESSALINE_CLANG_FLAGS
    --target=x86_64-w64-mingw32 -std=c++20
    -isystem ${libstdcxx} -isystem ${libstdcxx}/x86_64-w64-mingw32
    ${includes} -isystem ${PROJECT_BINARY_DIR}/include ${definitions} ${TESSALINE_WARNINGS})
endif()

function(tessaline_second_opinion target)
  if(NOT TESSALINE_SECOND_OPINION)
    return()
  endif()
  get_target_property(files ${target} SOURCES)
  get_target_property(folder ${target} SOURCE_DIR)
  set(stamps)
  foreach(file ${files})
    if(NOT file MATCHES "\\.cpp$")
      continue()
    endif()
    cmake_path(ABSOLUTE_PATH file BASE_DIRECTORY ${folder} OUTPUT_VARIABLE source)
    cmake_path(RELATIVE_PATH source BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE name)
    set(stamp ${PROJECT_BINARY_DIR}/second_opinion/${name}.stamp)
    cmake_path(GET stamp PARENT_PATH stamp_folder)
    file(MAKE_DIRECTORY ${stamp_folder})
    add_custom_command(
      OUTPUT ${stamp}
      COMMAND ${CLANGXX} ${TESSALINE_CLANG_FLAGS} -fsyntax-only -MMD -MT ${stamp}
              -MF ${stamp}.d ${source}
      COMMAND ${CLANG_TIDY} --quiet ${source} -- ${TESSALINE_CLANG_FLAGS} 2> ${stamp}.log
      COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
      DEPENDS ${source} ${PROJECT_SOURCE_DIR}/.clang-tidy
      DEPFILE ${stamp}.d
      COMMENT "Second opinion on ${name}"
      VERBATIM)
    list(APPEND stamps ${stamp})
  endforeach()
  add_custom_target(${target}_second_opinion ALL DEPENDS ${stamps})
endfunction()
