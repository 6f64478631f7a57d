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

if(TAVIMOR_SANITIZE)
  target_compile_options(tavimor_options INTERFACE
    -fsanitize=${TAVIMOR_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tavimor_options INTERFACE -fsanitize=${TAVIMOR_SANITIZE})
endif()

if(TAVIMOR_FUZZ)
  target_compile_options(tavimor_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
