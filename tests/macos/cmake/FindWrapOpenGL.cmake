# Qt asks for the OpenGL framework, which only a Mac has; nothing here draws with it.
if(NOT TARGET WrapOpenGL::WrapOpenGL)
  add_library(WrapOpenGL::WrapOpenGL INTERFACE IMPORTED)
endif()
set(WrapOpenGL_FOUND TRUE)
