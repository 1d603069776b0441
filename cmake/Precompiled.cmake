# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Reading the headers of Qt and of the standard library is most of the compiler's work on a source with windows. They are
# read once for each kind of target, and never for a target that may not see Qt.

set(ZELVIA_STANDARD_HEADERS
  <algorithm> <array> <cmath> <cstddef> <cstdint> <filesystem> <functional> <limits> <map> <memory> <optional> <span>
  <string> <string_view> <utility> <vector>)
set(ZELVIA_CORE_HEADERS <QByteArray> <QByteArrayList> <QFile> <QList> <QObject> <QString> <QStringList> <QTimer>)
set(ZELVIA_WIDGET_HEADERS
  <QApplication> <QClipboard> <QFileDialog> <QImage> <QKeyEvent> <QLabel> <QLineEdit> <QListWidget> <QMenu> <QMenuBar>
  <QMessageBox> <QMouseEvent> <QPainter> <QPushButton> <QWidget> <QWindow>)

# zelvia_precompiled(kind HEADERS headers LINKS targets [OPTIONS targets])
#   The headers for targets that link at least those, with those options, and are compiled under Qt's strict rules.
function(zelvia_precompiled kind)
  cmake_parse_arguments(KIND "" "" "HEADERS;LINKS;OPTIONS" ${ARGN})
  set(source ${CMAKE_BINARY_DIR}/precompiled/${kind}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "")
  add_library(zelvia_precompiled_${kind} OBJECT ${source})
  set_target_properties(zelvia_precompiled_${kind} PROPERTIES AUTOMOC OFF)
  target_link_libraries(zelvia_precompiled_${kind} PRIVATE ${KIND_LINKS} zelvia_options ${KIND_OPTIONS})
  target_compile_definitions(zelvia_precompiled_${kind} PRIVATE ${ZELVIA_QT_STRICT})
  target_precompile_headers(zelvia_precompiled_${kind} PRIVATE ${KIND_HEADERS})
endfunction()

# zelvia_reads_precompiled(target kind)
function(zelvia_reads_precompiled target kind)
  target_precompile_headers(${target} REUSE_FROM zelvia_precompiled_${kind})
endfunction()
