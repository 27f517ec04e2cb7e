# The libraries that the project stands on, and the shape that its own targets share.

find_package(Qt6 6.4 REQUIRED COMPONENTS Core Widgets Test)
find_package(GTest 1.12 REQUIRED)
find_package(benchmark 1.7 REQUIRED)
find_package(absl REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(Libedit REQUIRED IMPORTED_TARGET libedit)
pkg_check_modules(YamlCpp REQUIRED IMPORTED_TARGET yaml-cpp)
pkg_check_modules(Graphviz REQUIRED IMPORTED_TARGET libgvc libcgraph)
pkg_check_modules(OpenColorIO REQUIRED IMPORTED_TARGET OpenColorIO)

# vesk_library(NAME SOURCES... ) : a shared library of the standalone platform. Its headers are reached
# from src/, as "platform/..." and "standalone/...".
function(vesk_library name)
  add_library(${name} SHARED ${ARGN})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
endfunction()

# vesk_test(NAME LIBRARIES... ) : one GoogleTest program made of NAME_test.cpp in this folder.
function(vesk_test name)
  add_executable(${name}_test ${name}_test.cpp)
  target_link_libraries(${name}_test PRIVATE ${ARGN} GTest::gmock GTest::gtest GTest::gtest_main)
  target_include_directories(${name}_test PRIVATE ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/tests)
  add_test(NAME ${name} COMMAND ${name}_test)
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 120)
endfunction()
