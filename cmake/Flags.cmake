# Compiler flags for our own code; Qt's headers are system headers and give no warnings.
# No -Wnull-dereference: it works only in optimized builds and gives false warnings at each QPointer.
add_library(zavel_flags INTERFACE)
target_compile_definitions(zavel_flags INTERFACE
  QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_STRICT_ITERATORS)
target_compile_options(zavel_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wcast-align -Wduplicated-cond -Wlogical-op
  # Qt 5.15 deprecates functions that have no replacement on every supported platform.
  -Wno-deprecated-declarations)
if(CMAKE_UNITY_BUILD)
  # A unity file includes source files; GCC warns about their anonymous namespaces as if they were in headers.
  target_compile_options(zavel_flags INTERFACE -Wno-subobject-linkage)
endif()
if(ZAVEL_WERROR)
  target_compile_options(zavel_flags INTERFACE -Werror)
endif()
