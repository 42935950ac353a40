# What every target of ours is compiled with: an interface target that the folders link.
add_library(bramlee_options INTERFACE)
target_compile_options(bramlee_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wsuggest-override -Wimplicit-fallthrough
  -Wmissing-declarations -Wundef -Wformat=2 -Wcast-qual -Wdouble-promotion
  -Wzero-as-null-pointer-constant -Werror
  # a*b+c must round twice on every processor: where a dot falls decides whether it is plotted
  -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(bramlee_options INTERFACE -Wduplicated-cond -Wlogical-op -Wuseless-cast
    # GCC 12 sees overlaps (GCC bug 105651), and at -O3 overflows, in std::string's own operator+
    # that are none
    $<$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>:-Wno-restrict -Wno-stringop-overflow>)
endif()
target_include_directories(bramlee_options INTERFACE ${PROJECT_SOURCE_DIR})

add_library(bramlee_qt_options INTERFACE)
target_link_libraries(bramlee_qt_options INTERFACE bramlee_options)
target_compile_definitions(bramlee_qt_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_DISABLE_DEPRECATED_BEFORE=0x060400)

option(BRAMLEE_SANITIZE "Address and undefined-behaviour sanitizers" OFF)
# Of the tests' own code (BRAMLEE_OF_TESTS) the memory alone is checked: the rest takes a third of the
# time that the compiler needs for it.
define_property(TARGET PROPERTY BRAMLEE_OF_TESTS INITIALIZE_FROM_VARIABLE BRAMLEE_OF_TESTS)
if(BRAMLEE_SANITIZE)
  set(of_tests $<BOOL:$<TARGET_PROPERTY:BRAMLEE_OF_TESTS>>)
  target_compile_options(bramlee_options INTERFACE
    -fsanitize=address $<$<NOT:${of_tests}>:-fsanitize=undefined>
    -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(bramlee_options INTERFACE -fsanitize=address,undefined)
endif()
