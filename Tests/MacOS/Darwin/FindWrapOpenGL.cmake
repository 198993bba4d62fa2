# Qt's own looks for a framework of macOS.
if(NOT TARGET WrapOpenGL::WrapOpenGL)
    add_library(WrapOpenGL::WrapOpenGL INTERFACE IMPORTED)
endif()
set(WrapOpenGL_FOUND TRUE)
