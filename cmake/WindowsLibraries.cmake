# Libraries for the Windows build, for which Debian has no binary packages: header-only ones from the
# native packages, the others built from the sources that packages carry.

include(ForeignSubdirectory)
enable_language(C)

# Only these folders of /usr/include: the rest of it is for Linux.
set(native_headers ${PROJECT_BINARY_DIR}/native-headers)
file(MAKE_DIRECTORY ${native_headers})
foreach(folder nlohmann CLI valijson)
  if(NOT EXISTS /usr/include/${folder})
    message(FATAL_ERROR "/usr/include/${folder} is missing: run scripts/packages windows")
  endif()
  file(CREATE_LINK /usr/include/${folder} ${native_headers}/${folder} SYMBOLIC)
endforeach()
add_library(native_headers INTERFACE)
target_include_directories(native_headers SYSTEM INTERFACE ${native_headers})
add_library(nlohmann_json::nlohmann_json ALIAS native_headers)
add_library(CLI11::CLI11 ALIAS native_headers)
add_library(valijson ALIAS native_headers)

# scripts/expat-source puts the sources there.
set(EXPAT_SOURCE_DIR ${PROJECT_SOURCE_DIR}/build/sources/expat CACHE PATH "Sources of Expat")
foreach(part TOOLS EXAMPLES TESTS DOCS PKGCONFIG)
  set(EXPAT_BUILD_${part} OFF CACHE BOOL "" FORCE)
endforeach()
set(EXPAT_SHARED_LIBS OFF CACHE BOOL "" FORCE)
set(EXPAT_ENABLE_INSTALL OFF CACHE BOOL "" FORCE)
if(NOT EXISTS ${EXPAT_SOURCE_DIR}/CMakeLists.txt)
  message(FATAL_ERROR "The sources of Expat are missing: run scripts/expat-source ${EXPAT_SOURCE_DIR}")
endif()
add_foreign_subdirectory(${EXPAT_SOURCE_DIR} expat)
target_include_directories(expat INTERFACE ${EXPAT_SOURCE_DIR}/lib)
add_library(EXPAT::EXPAT ALIAS expat)

# The compiler's own libraries go beside the programs.
foreach(library libstdc++-6 libgcc_s_seh-1 libwinpthread-1)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}.dll
                  OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(NOT IS_ABSOLUTE ${path})
    # Not among the compiler's files but in the target's folder.
    set(path ${CMAKE_FIND_ROOT_PATH}/lib/${library}.dll)
  endif()
  file(COPY ${path} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  install(FILES ${path} DESTINATION ${CMAKE_INSTALL_BINDIR})
endforeach()
