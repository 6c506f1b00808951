# Headers that nearly every source reads, compiled once a layer. Chosen by count: a whole module of Qt would take longer
# to load than most sources take to compile.
set(entetes_core
  <QDateTime> <QDir> <QFile> <QFileInfo> <QHash> <QString> <QStringList> <QVariant>
  <algorithm> <array> <cmath> <functional> <future> <map> <memory> <optional> <random> <set> <vector>)
set(entetes_widgets ${entetes_core}
  <QAction> <QApplication> <QComboBox> <QDialog> <QKeyEvent> <QLabel> <QLineEdit> <QListWidget> <QMainWindow> <QPainter>
  <QPushButton> <QTabBar> <QTableView> <QTimer> <QToolButton>)
set(entetes_essais_core ${entetes_core} <gtest/gtest.h>)
set(entetes_essais_widgets ${entetes_widgets} <QTest> <gtest/gtest.h>)

# The compiler cache has to be told that it may know these headers by their content.
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    add_compile_options(-fpch-preprocess)
  endif()
endif()
