# Lets CMake believe that it runs on a Mac, as far as this machine's Qt and libraries go along. Nothing can be linked so.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR arm64)
set(CMAKE_OSX_SYSROOT "")
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
find_program(ORVELLO_CLANG clang++ REQUIRED)
foreach(language CXX OBJCXX)
    set(CMAKE_${language}_COMPILER ${ORVELLO_CLANG})
    set(CMAKE_${language}_COMPILER_TARGET arm64-apple-macosx13.0)
endforeach()
set(CMAKE_INSTALL_NAME_TOOL /usr/bin/true)
set(QT_NO_APPLE_SDK_AND_XCODE_CHECK ON) # Newer versions of Qt would ask Xcode.

# Where libraries are here.
execute_process(COMMAND cc -print-multiarch OUTPUT_VARIABLE CMAKE_LIBRARY_ARCHITECTURE OUTPUT_STRIP_TRAILING_WHITESPACE)
set(CMAKE_PREFIX_PATH /usr /usr/lib/${CMAKE_LIBRARY_ARCHITECTURE})
set(CMAKE_FIND_LIBRARY_SUFFIXES .so .a)
set(CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR})
