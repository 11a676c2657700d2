# One binary for every server: the loader costs more than a run on a blade of two
# adapters, and a dynamic program asks for the library of the machine that built it.
if(CNATOOL_STATIC AND NOT CNATOOL_SANITIZE)
  include(CheckCXXSourceCompiles)
  set(CMAKE_REQUIRED_FLAGS -fPIE)
  set(CMAKE_REQUIRED_LINK_OPTIONS -static-pie)
  check_cxx_source_compiles("#include <string>\nint main(int n, char**) { return std::to_string(n).empty(); }"
    CNATOOL_LINKS_STATICALLY)
  if(CNATOOL_LINKS_STATICALLY)
    # Without the property CMake adds neither -pie nor -no-pie, which -static-pie does
    # not go with.
    foreach(program cnatool lscna)
      set_property(TARGET ${program} PROPERTY POSITION_INDEPENDENT_CODE)
      target_compile_options(${program} PRIVATE -fPIE)
      target_link_options(${program} PRIVATE -static-pie)
    endforeach()
  else()
    message(WARNING "This toolchain can't link a program statically: cnatool will need the C and C++ "
      "libraries of this machine, and can't be packaged. Debian has what lacks in libc6-dev, Fedora in "
      "glibc-static and libstdc++-static.")
  endif()
endif()
