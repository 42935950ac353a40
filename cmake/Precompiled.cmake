# Headers that nearly every source of a folder with windows, or nearly every test, reads: compiled
# once a build. A source still includes what it uses: BRAMLEE_PRECOMPILE=OFF with CMAKE_UNITY_BUILD=OFF
# shows whether it does.
option(BRAMLEE_PRECOMPILE "Precompile the headers of Qt and GoogleTest" ON)

# GCC then collects no garbage, which takes a fifth of its time with such headers.
if(BRAMLEE_PRECOMPILE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(bramlee_options INTERFACE
    --param=ggc-min-expand=10000 --param=ggc-min-heapsize=2000000)
endif()

# bramlee_precompiled(NAME HEADERS ... LINKS ...): makes the set of that name.
function(bramlee_precompiled name)
  cmake_parse_arguments(arg "" "" "HEADERS;LINKS" ${ARGN})
  if(NOT BRAMLEE_PRECOMPILE)
    return()
  endif()
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "")
  add_library(${name} OBJECT ${source})
  target_link_libraries(${name} PRIVATE ${arg_LINKS})
  target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()

# bramlee_precompile(TARGET NAME): has the target's sources begin with that set. The compiler takes
# it only where the definitions are the same, so the target links what the set does; where they
# differ nevertheless it warns and reads the headers themselves.
function(bramlee_precompile target name)
  if(BRAMLEE_PRECOMPILE)
    get_target_property(links ${name} LINK_LIBRARIES)
    target_link_libraries(${target} PRIVATE ${links})
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-error=invalid-pch>)
    target_precompile_headers(${target} REUSE_FROM ${name})
  endif()
endfunction()

bramlee_precompiled(bramlee_core_headers
  HEADERS <QCoreApplication> <QDir> <QFileInfo> <QHash> <QString> <QStringList> <algorithm> <cmath>
          <functional> <memory> <optional> <vector>
  LINKS Qt6::Core bramlee_qt_options)
bramlee_precompiled(bramlee_window_headers
  HEADERS <QAction> <QApplication> <QComboBox> <QLabel> <QLineEdit> <QMainWindow> <QMenu> <QMenuBar>
          <QPainter> <QTimer> <algorithm> <cmath> <functional> <memory> <optional> <vector>
  LINKS Qt6::Widgets bramlee_qt_options)
