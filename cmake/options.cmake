# What every target is compiled and linked with.
# These three go to clang as well, which reads every file a second time.
set(TESSALINE_INCLUDES ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/generated)
set(TESSALINE_DEFINITIONS
  UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN STRICT _WIN32_WINNT=0x0A00)
set(TESSALINE_WARNINGS -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)

# The version stands in project() alone; the program and its resources read it here.
configure_file(cmake/product_version.h.in ${PROJECT_BINARY_DIR}/generated/product_version.h @ONLY)

add_library(tessaline_options INTERFACE)
target_include_directories(tessaline_options INTERFACE ${TESSALINE_INCLUDES})
target_compile_definitions(tessaline_options INTERFACE ${TESSALINE_DEFINITIONS})
target_link_libraries(tessaline_options INTERFACE
  comctl32 comdlg32 gdi32 shell32 user32)

if(MSVC)
  target_compile_options(tessaline_options INTERFACE
    "$<$<COMPILE_LANGUAGE:CXX>:/utf-8;/W4;/permissive-;/guard:cf>"
    "$<$<AND:$<COMPILE_LANGUAGE:CXX>,$<BOOL:${TESSALINE_STRICT}>>:/WX>")
  target_compile_definitions(tessaline_options INTERFACE _CRT_SECURE_NO_WARNINGS)
  target_link_options(tessaline_options INTERFACE
    /MANIFEST:NO /DYNAMICBASE /HIGHENTROPYVA /NXCOMPAT /TSAWARE /STACK:2097152 /guard:cf)
  set(CMAKE_MSVC_RUNTIME_LIBRARY "MultiThreaded$<$<CONFIG:Debug>:Debug>")
else()
  target_compile_options(tessaline_options INTERFACE
    $<$<COMPILE_LANGUAGE:CXX>:${TESSALINE_WARNINGS}>
    $<$<COMPILE_LANGUAGE:CXX>:-ffunction-sections> $<$<COMPILE_LANGUAGE:CXX>:-fdata-sections>
    $<$<COMPILE_LANGUAGE:CXX>:-fstack-protector-strong>)
  target_link_options(tessaline_options INTERFACE
    -static -fstack-protector-strong -Wl,--gc-sections
    -Wl,--dynamicbase,--high-entropy-va,--nxcompat,--tsaware
    # Windows 7 and later; the linker's own 5.2 would have Windows imitate XP here and there.
    -Wl,--major-subsystem-version,6,--minor-subsystem-version,0
    # The same sources give the same bytes.
    -Wl,--no-insert-timestamp)
  if(TESSALINE_CHECKS)
    target_compile_definitions(tessaline_options INTERFACE _GLIBCXX_ASSERTIONS)
    target_compile_options(tessaline_options INTERFACE
      $<$<COMPILE_LANGUAGE:CXX>:-UNDEBUG>
      $<$<COMPILE_LANGUAGE:CXX>:-fsanitize=undefined>
      $<$<COMPILE_LANGUAGE:CXX>:-fsanitize-undefined-trap-on-error>)
  endif()
endif()

# Notes which folders the files of `place`, a folder or a single file, may include.
# tests/includes_test.sh compares every include with these lines.
file(WRITE ${PROJECT_BINARY_DIR}/looks_at.txt "")
function(tessaline_looks_at place)
  list(JOIN ARGN " " folders)
  file(APPEND ${PROJECT_BINARY_DIR}/looks_at.txt "${place} ${folders}\n")
endfunction()

# A module: a static library of the files named in one folder, which depends on the modules listed
# after LOOKS_AT. Its name is the path of its folder; the library of ui/form is tessaline_ui_form.
function(tessaline_module name)
  cmake_parse_arguments(MODULE "" "" "FILES;LOOKS_AT" ${ARGN})
  tessaline_looks_at(${name} ${MODULE_LOOKS_AT})
  string(REPLACE "/" "_" target tessaline_${name})
  add_library(${target} STATIC ${MODULE_FILES})
  target_link_libraries(${target} PUBLIC tessaline_options)
  if(TARGET delay_load_libraries)
    add_dependencies(${target} delay_load_libraries)
  endif()
  foreach(other ${MODULE_LOOKS_AT})
    string(REPLACE "/" "_" other ${other})
    target_link_libraries(${target} PUBLIC tessaline_${other})
  endforeach()
  tessaline_second_opinion(${target})
endfunction()
