# zrk_export_only(target map): the shared library exports what the version script names and nothing else. Templates
# of the standard library that the compiler instantiates in it are visible whatever the compiler is told, so that
# hiding its own symbols is not enough. Linkers that know no version scripts, as those for Windows, export what
# the sources mark.
include(CheckLinkerFlag)

if(NOT WIN32)
  file(WRITE ${PROJECT_BINARY_DIR}/nothing.map "{ local: *; };\n")
  check_linker_flag(CXX LINKER:--version-script=${PROJECT_BINARY_DIR}/nothing.map ZRK_LINKER_TAKES_MAPS)
endif()

function(zrk_export_only target map)
  if(ZRK_LINKER_TAKES_MAPS)
    target_link_options(${target} PRIVATE LINKER:--version-script=${map})
    set_target_properties(${target} PROPERTIES LINK_DEPENDS ${map})
  endif()
endfunction()
