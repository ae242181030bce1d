# zrk_platform_sources(variable globs...): the sources that are for the platform built for; X.posix.cpp and
# X.windows.cpp are for one only.
function(zrk_platform_sources variable)
  file(GLOB sources CONFIGURE_DEPENDS ${ARGN})
  if(WIN32)
    list(FILTER sources EXCLUDE REGEX "\\.posix\\.cpp$")
  else()
    list(FILTER sources EXCLUDE REGEX "\\.windows\\.cpp$")
  endif()
  set(${variable} ${sources} PARENT_SCOPE)
endfunction()
