# What holds for every target: C++20, warnings that are errors, and one folder for all that is run.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(MSVC)
  # /permissive- and the others ask for the language as the standard has it, which is what is written here.
  add_compile_options(/W4 /WX /utf-8 /permissive- /EHsc /Zc:__cplusplus /Zc:preprocessor)
  # The exported record holds the host's and the library's texts: whoever uses it is built by the same compiler.
  add_compile_options(/wd4251)
  # The C library's functions stand here under their standard names.
  add_compile_definitions(_CRT_SECURE_NO_WARNINGS)
else()
  add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 finds these where the standard library's own strings and functions are inlined, wrongly.
    add_compile_options(-Wno-restrict -Wno-stringop-overflow -Wno-array-bounds -Wno-maybe-uninitialized)
  endif()
endif()

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

if(WIN32)
  # DLLs carry the names of their targets, as the host loads them.
  set(CMAKE_SHARED_LIBRARY_PREFIX "")
  add_compile_definitions(WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0A00)
endif()
