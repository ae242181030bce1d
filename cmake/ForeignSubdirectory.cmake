# add_foreign_subdirectory(source binary): a project that is not ours, built without our warnings and
# definitions, and only as far as it is needed.
macro(add_foreign_subdirectory source binary)
  foreach(property COMPILE_OPTIONS COMPILE_DEFINITIONS)
    get_property(own_${property} DIRECTORY PROPERTY ${property})
    set_property(DIRECTORY PROPERTY ${property} "")
  endforeach()
  add_subdirectory(${source} ${binary} EXCLUDE_FROM_ALL SYSTEM)
  foreach(property COMPILE_OPTIONS COMPILE_DEFINITIONS)
    set_property(DIRECTORY PROPERTY ${property} "${own_${property}}")
  endforeach()
endmacro()
