# What other modules of the host need: the component with its exported header, the interface library with its
# headers, the host check, the host's headers and library that they are built against, a CMake package for them, and
# the pages for people.

include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/ZRKCVSManager)
set(header_folder ${CMAKE_INSTALL_INCLUDEDIR}/ZRKCVSManager)

install(DIRECTORY ${PROJECT_SOURCE_DIR}/ZRKCVSManager/include/ ${PROJECT_SOURCE_DIR}/ZRKVersionControlItf/include/
                  ${PROJECT_SOURCE_DIR}/hostcheck/include/ ${PROJECT_SOURCE_DIR}/host/include/
        DESTINATION ${header_folder} FILES_MATCHING PATTERN "*.h")
install(FILES ${PROJECT_BINARY_DIR}/ZRKCVSManager/include/ZRKCVSManagerExport.h
              ${PROJECT_BINARY_DIR}/hostcheck/include/ZRKHostCheckExport.h
        DESTINATION ${header_folder})
target_include_directories(host_headers INTERFACE $<INSTALL_INTERFACE:${header_folder}>)
if(NOT WIN32)
  install(FILES ${PROJECT_SOURCE_DIR}/host/windows/include/windows.h DESTINATION ${header_folder}/windows)
  target_include_directories(host_headers SYSTEM INTERFACE $<INSTALL_INTERFACE:${header_folder}/windows>)
endif()

set_target_properties(ZRKCVSManager ZRKVersionControlItf ZRKHostCheck PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS ZRKCVSManager ZRKVersionControlItf ZRKHostCheck host host_headers EXPORT ZRKCVSManagerTargets
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT ZRKCVSManagerTargets NAMESPACE ZRKCVSManager:: DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZRKCVSManagerConfigVersion.cmake
                                 COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_SOURCE_DIR}/cmake/ZRKCVSManagerConfig.cmake
              ${PROJECT_BINARY_DIR}/ZRKCVSManagerConfigVersion.cmake
        DESTINATION ${package_folder})

# Beside each other as here, so that their links lead on.
install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_SOURCE_DIR}/CONTRIBUTING.md
        DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs ${PROJECT_SOURCE_DIR}/examples DESTINATION ${CMAKE_INSTALL_DOCDIR})
