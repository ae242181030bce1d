# What scripts/package hands out: a Debian package and an archive for Linux, an archive for Windows, each with the
# checksum of its file beside it.

set(CPACK_PACKAGE_NAME zrkcvsmanager)
set(CPACK_PACKAGE_CONTACT "The ZRKCVSManager maintainers <maintainers@users.noreply.invalid>")
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_SYSTEM_NAME windows-x86_64)
else()
  set(CPACK_GENERATOR DEB TGZ)
  string(TOLOWER ${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR} CPACK_SYSTEM_NAME)
endif()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION vcs)
# What the libraries need is read from them; they find each other in the build folder.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
# The adapters start the one that the working copy belongs to.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "cvs, subversion")
include(CPack)
