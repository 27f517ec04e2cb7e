# What VESK_FUZZ adds to every target: coverage that libFuzzer reads, and the sanitizers. clang leaves their
# run time to the program, so a library does not name all that it uses (VESK_WHOLE_MODULES).

set(VESK_WHOLE_MODULES -Wl,--no-undefined)
if(VESK_FUZZ)
  # clang knows other warnings, and GCC's run first; the type checks that need one type description for
  # all libraries do not work where most of it is hidden.
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize=vptr,function
                      -fno-sanitize-recover=undefined -fno-omit-frame-pointer
                      -Wno-error -Wno-unknown-warning-option)
  add_link_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize=vptr,function)
  set(VESK_WHOLE_MODULES)
endif()
