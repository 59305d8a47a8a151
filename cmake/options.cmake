# What every target is compiled and linked with.
add_library(tessaline_options INTERFACE)
target_include_directories(tessaline_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_definitions(tessaline_options INTERFACE
  UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN STRICT _WIN32_WINNT=0x0A00)
target_link_libraries(tessaline_options INTERFACE
  comctl32 comdlg32 gdi32 shell32 user32)

if(MSVC)
  target_compile_options(tessaline_options INTERFACE /utf-8 /W4 /WX /permissive- /guard:cf)
  target_compile_definitions(tessaline_options INTERFACE _CRT_SECURE_NO_WARNINGS)
  target_link_options(tessaline_options INTERFACE
    /MANIFEST:NO /DYNAMICBASE /HIGHENTROPYVA /NXCOMPAT /guard:cf)
  set(CMAKE_MSVC_RUNTIME_LIBRARY "MultiThreaded$<$<CONFIG:Debug>:Debug>" PARENT_SCOPE)
  set(CMAKE_MSVC_RUNTIME_LIBRARY "MultiThreaded$<$<CONFIG:Debug>:Debug>")
else()
  set(TESSALINE_WARNINGS -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
  target_compile_options(tessaline_options INTERFACE
    $<$<COMPILE_LANGUAGE:CXX>:${TESSALINE_WARNINGS}>
    $<$<COMPILE_LANGUAGE:CXX>:-ffunction-sections> $<$<COMPILE_LANGUAGE:CXX>:-fdata-sections>
    $<$<COMPILE_LANGUAGE:CXX>:-fstack-protector-strong>)
  target_link_options(tessaline_options INTERFACE
    -static -fstack-protector-strong -Wl,--gc-sections
    -Wl,--dynamicbase,--high-entropy-va,--nxcompat)
  if(TESSALINE_CHECKS)
    target_compile_definitions(tessaline_options INTERFACE _GLIBCXX_ASSERTIONS)
    target_compile_options(tessaline_options INTERFACE
      $<$<COMPILE_LANGUAGE:CXX>:-UNDEBUG>
      $<$<COMPILE_LANGUAGE:CXX>:-fsanitize=undefined>
      $<$<COMPILE_LANGUAGE:CXX>:-fsanitize-undefined-trap-on-error>)
  endif()
endif()

# A room: a static library of the files named, which may look at the rooms listed after LOOKS_AT.
function(tessaline_room name)
  cmake_parse_arguments(ROOM "" "" "FILES;LOOKS_AT" ${ARGN})
  add_library(tessaline_${name} STATIC ${ROOM_FILES})
  target_link_libraries(tessaline_${name} PUBLIC tessaline_options)
  if(TARGET delay_load_libraries)
    add_dependencies(tessaline_${name} delay_load_libraries)
  endif()
  foreach(other ${ROOM_LOOKS_AT})
    target_link_libraries(tessaline_${name} PUBLIC tessaline_${other})
  endforeach()
  tessaline_second_opinion(tessaline_${name})
endfunction()
