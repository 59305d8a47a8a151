# Windows looks for most system libraries in the program's own folder first, where anybody who can
# write a download folder could put one. The known ones it takes from the system folder alone, and the
# common controls come with the manifest; bcrypt and crypt32 are neither. They are loaded when first
# called, after the entry point has limited the search to the system folder.
if(MSVC)
  target_link_libraries(tessaline_options INTERFACE bcrypt crypt32 delayimp)
  target_link_options(tessaline_options INTERFACE
    /DEPENDENTLOADFLAG:0x800 /DELAYLOAD:bcrypt.dll /DELAYLOAD:crypt32.dll)
  return()
endif()

find_program(DLLTOOL x86_64-w64-mingw32-dlltool REQUIRED)
add_custom_target(delay_load_libraries)
foreach(library bcrypt crypt32)
  set(definition ${PROJECT_SOURCE_DIR}/platform/delay_load/${library}.def)
  set(archive ${PROJECT_BINARY_DIR}/delay_load/lib${library}.a)
  file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/delay_load)
  add_custom_command(
    OUTPUT ${archive}
    COMMAND ${DLLTOOL} -m i386:x86-64 -d ${definition} --output-delaylib ${archive}
    DEPENDS ${definition}
    COMMENT "Delay-load library of ${library}"
    VERBATIM)
  add_custom_target(delay_load_${library} DEPENDS ${archive})
  add_dependencies(delay_load_libraries delay_load_${library})
  target_link_libraries(tessaline_options INTERFACE ${archive})
endforeach()
