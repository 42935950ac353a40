# Headers that nearly every source of a folder with windows, or nearly every test, reads: compiled
# once a build. A source still includes what it uses; BRAMLEE_PRECOMPILE=OFF shows whether it does,
# and is what the fuzz build and clang-tidy go by.
option(BRAMLEE_PRECOMPILE "Precompile the headers of Qt and GoogleTest" ON)

# bramlee_precompiled(NAME HEADERS ... LINKS ...): makes the set of that name.
function(bramlee_precompiled name)
  cmake_parse_arguments(arg "" "" "HEADERS;LINKS" ${ARGN})
  if(NOT BRAMLEE_PRECOMPILE)
    return()
  endif()
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "")
  add_library(${name} OBJECT ${source})
  target_link_libraries(${name} PRIVATE ${arg_LINKS} bramlee_qt_options)
  target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()

# bramlee_precompile(TARGET NAME): has the target's sources begin with that set.
function(bramlee_precompile target name)
  if(BRAMLEE_PRECOMPILE)
    target_precompile_headers(${target} REUSE_FROM ${name})
  endif()
endfunction()

bramlee_precompiled(bramlee_window_headers
  HEADERS <QAction> <QApplication> <QComboBox> <QLabel> <QLineEdit> <QMainWindow> <QMenu> <QMenuBar>
          <QPainter> <QTimer> <algorithm> <cmath> <functional> <memory> <optional> <vector>
  LINKS Qt6::Widgets)
