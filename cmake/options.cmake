# What every target of this project is compiled with.
add_library(tavimor_options INTERFACE)
target_include_directories(tavimor_options INTERFACE ${PROJECT_SOURCE_DIR}/src)

if(MSVC)
  target_compile_options(tavimor_options INTERFACE /W4 /WX /fp:precise /utf-8)
else()
  # -ffp-contract=off: a fused multiply-add would change the last digits from one processor to the next.
  # -Wno-sign-conversion: indices are signed Longs; a negative one is caught by the bounds, not by the compiler.
  target_compile_options(tavimor_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Werror -ffp-contract=off)
  # GCC 12 sees overlapping copies in joined std::strings where there are none (its bug 105651).
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(tavimor_options INTERFACE -Wno-restrict)
  endif()
endif()

# Hardened as Debian builds its programs. -fPIE stands among the flags of all targets, so that -fPIC of the toolkit's
# targets comes behind it and wins; these are linked with -pie, and tavimor-cli with -static-pie, which does not go
# together with it. Fortifying needs an optimised build.
include(CheckPIESupported)
check_pie_supported()
set(TAVIMOR_STATIC_LINK_OPTION -static)
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND NOT TAVIMOR_SANITIZE)
  string(APPEND CMAKE_CXX_FLAGS " -fPIE")
  target_compile_options(tavimor_options INTERFACE -fstack-protector-strong -Wformat -Werror=format-security
    $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
  target_link_options(tavimor_options INTERFACE -Wl,-z,relro -Wl,-z,now)
  include(CheckCXXSourceCompiles)
  set(CMAKE_REQUIRED_FLAGS -fPIE)
  set(CMAKE_REQUIRED_LINK_OPTIONS -static-pie)
  check_cxx_source_compiles("int main() { return 0; }" TAVIMOR_LINKS_STATIC_PIE)
  unset(CMAKE_REQUIRED_FLAGS)
  unset(CMAKE_REQUIRED_LINK_OPTIONS)
  if(TAVIMOR_LINKS_STATIC_PIE)
    set(TAVIMOR_STATIC_LINK_OPTION -static-pie)
  endif()
endif()

# With the sanitizers' checks in it GCC takes variables of its own library (std::regex) for uninitialised.
if(TAVIMOR_SANITIZE)
  target_compile_definitions(tavimor_options INTERFACE TAVIMOR_SANITIZED)
  target_compile_options(tavimor_options INTERFACE
    -fsanitize=${TAVIMOR_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(tavimor_options INTERFACE -fsanitize=${TAVIMOR_SANITIZE})
endif()

if(TAVIMOR_FUZZ)
  target_compile_options(tavimor_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# What Windows shows of a program: see packaging/windows/program.rc.in.
if(WIN32)
  enable_language(RC)
endif()
function(tavimor_add_resources TAVIMOR_PROGRAM)
  if(WIN32)
    set(resources ${CMAKE_CURRENT_BINARY_DIR}/${TAVIMOR_PROGRAM}.rc)
    configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/program.rc.in ${resources} @ONLY)
    target_sources(${TAVIMOR_PROGRAM} PRIVATE ${resources})
    set_source_files_properties(${resources} PROPERTIES
      OBJECT_DEPENDS ${PROJECT_SOURCE_DIR}/packaging/windows/program.manifest)
  endif()
endfunction()
