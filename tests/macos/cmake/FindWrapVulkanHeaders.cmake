# Qt would find those of this machine, beside headers of the C library that are not meant.
if(NOT TARGET WrapVulkanHeaders::WrapVulkanHeaders)
  add_library(WrapVulkanHeaders::WrapVulkanHeaders INTERFACE IMPORTED)
endif()
set(WrapVulkanHeaders_FOUND TRUE)
