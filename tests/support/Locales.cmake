# Locales that tests need, made in the build folder: LOCPATH names it while such a test runs. A test fails
# when its locale is not there.
function(vesk_test_locale name source charset)
  set(folder ${CMAKE_BINARY_DIR}/locale/${name})
  if(EXISTS ${folder}/LC_CTYPE)
    return()
  endif()
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/locale)
  execute_process(COMMAND localedef --no-archive -i ${source} -f ${charset} ${folder}
    RESULT_VARIABLE failed OUTPUT_QUIET)
  if(failed)
    message(WARNING "The locale ${name} could not be made; the tests that need it will fail.")
  endif()
endfunction()

vesk_test_locale(en_US.ISO-8859-1 en_US ISO-8859-1)  # narrow text differs from UTF-8
vesk_test_locale(de_DE.UTF-8 de_DE UTF-8)            # numbers have a comma
