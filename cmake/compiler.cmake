# Flags that every target of quarn gets.
#
# No fused multiply-add and no fast math: a result is the defined formula in the defined order of operations, the same bits on every
# processor.
add_library(quarn_flags INTERFACE)
target_compile_options(quarn_flags INTERFACE
  -ffp-contract=off -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(QUARN_WERROR)
  target_compile_options(quarn_flags INTERFACE -Werror)
endif()

if(QUARN_CHECKED)
  target_compile_definitions(quarn_flags INTERFACE QUARN_CHECKED)
endif()

if(QUARN_SANITIZE)
  target_compile_options(quarn_flags INTERFACE -fsanitize=${QUARN_SANITIZE} -fno-omit-frame-pointer)
  target_link_options(quarn_flags INTERFACE -fsanitize=${QUARN_SANITIZE})
  if(QUARN_SANITIZE MATCHES undefined)
    target_compile_options(quarn_flags INTERFACE -fno-sanitize-recover=undefined)
  endif()
  # Versions for several processors are resolved while the program loads, before a sanitizer has started.
  target_compile_definitions(quarn_flags INTERFACE QUARN_ONE_PROCESSOR_VERSION)
endif()

if(QUARN_COVERAGE)
  # The scheduler's threads count as well. Lines of a loop are counted in one version, not once for each processor.
  target_compile_options(quarn_flags INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(quarn_flags INTERFACE --coverage)
  target_compile_definitions(quarn_flags INTERFACE QUARN_ONE_PROCESSOR_VERSION)
endif()
