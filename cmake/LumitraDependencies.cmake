# Third-party libraries that Debian ships without a CMake config file.
# Each becomes an imported target so that the subsystem libraries can link it by name.

# OpenCV core + imgproc (libopencv-core-dev, libopencv-imgproc-dev).
find_path(OPENCV4_INCLUDE_DIR opencv2/core.hpp PATHS /usr/include/opencv4 REQUIRED)
find_library(OPENCV_CORE_LIBRARY opencv_core REQUIRED)
find_library(OPENCV_IMGPROC_LIBRARY opencv_imgproc REQUIRED)
add_library(Lumitra::OpenCV INTERFACE IMPORTED)
set_target_properties(Lumitra::OpenCV PROPERTIES
  INTERFACE_INCLUDE_DIRECTORIES "${OPENCV4_INCLUDE_DIR}"
  INTERFACE_LINK_LIBRARIES "${OPENCV_IMGPROC_LIBRARY};${OPENCV_CORE_LIBRARY}")

# potrace (libpotrace-dev): header and library, no pkg-config file.
find_path(POTRACE_INCLUDE_DIR potracelib.h REQUIRED)
find_library(POTRACE_LIBRARY potrace REQUIRED)
add_library(Lumitra::Potrace INTERFACE IMPORTED)
set_target_properties(Lumitra::Potrace PROPERTIES
  INTERFACE_INCLUDE_DIRECTORIES "${POTRACE_INCLUDE_DIR}"
  INTERFACE_LINK_LIBRARIES "${POTRACE_LIBRARY}")

# zint (libzint-dev): header and library, no pkg-config file.
find_path(ZINT_INCLUDE_DIR zint.h REQUIRED)
find_library(ZINT_LIBRARY zint REQUIRED)
add_library(Lumitra::Zint INTERFACE IMPORTED)
set_target_properties(Lumitra::Zint PROPERTIES
  INTERFACE_INCLUDE_DIRECTORIES "${ZINT_INCLUDE_DIR}"
  INTERFACE_LINK_LIBRARIES "${ZINT_LIBRARY}")

# dxflib (libdxflib-dev), through pkg-config.
pkg_check_modules(DXFLIB REQUIRED IMPORTED_TARGET dxflib)
add_library(Lumitra::Dxflib ALIAS PkgConfig::DXFLIB)
