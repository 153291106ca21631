# What the linter reads of the program for Windows: clang with the headers of the compiler that builds it.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-mingw32)
set(CMAKE_C_COMPILER clang)
set(CMAKE_C_COMPILER_TARGET x86_64-w64-mingw32)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY) # nothing is linked

execute_process(COMMAND x86_64-w64-mingw32-g++-posix -print-libgcc-file-name OUTPUT_VARIABLE libgcc
  OUTPUT_STRIP_TRAILING_WHITESPACE)
cmake_path(GET libgcc PARENT_PATH compiler)
set(CMAKE_CXX_FLAGS_INIT "-isystem ${compiler}/include/c++ -isystem ${compiler}/include/c++/x86_64-w64-mingw32")
