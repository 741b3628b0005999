# Compiler flags of our own code; Qt's headers come in as system headers and stay quiet.
# No -Wnull-dereference: it needs the optimiser, so only the release build would see it, and it cries at each QPointer.
add_library(zavel_flags INTERFACE)
target_compile_definitions(zavel_flags INTERFACE
  QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_STRICT_ITERATORS)
target_compile_options(zavel_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wcast-align -Wduplicated-cond -Wlogical-op
  # Qt 5.15 deprecates calls that this Qt offers no replacement for on every supported platform.
  -Wno-deprecated-declarations)
if(CMAKE_UNITY_BUILD)
  # A unity file includes source files, whose anonymous namespaces GCC then takes for a header's.
  target_compile_options(zavel_flags INTERFACE -Wno-subobject-linkage)
endif()
if(ZAVEL_WERROR)
  target_compile_options(zavel_flags INTERFACE -Werror)
endif()
