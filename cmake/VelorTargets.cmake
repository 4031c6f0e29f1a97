# One library a folder. velor_library(NAME [HEADERS core|widgets|tests] SOURCES... LINKS...) gives every
# folder the same warnings, include root (the repository's root, so that an include names its layer)
# and Qt rules.

# -Wnull-dereference is left out: optimised builds take every use of a QPointer for a null one.
add_library(velor_flags INTERFACE)
target_compile_options(velor_flags INTERFACE
    -Wall -Wextra -Wpedantic $<$<BOOL:${VELOR_WERROR}>:-Werror> -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wcast-align
    -Woverloaded-virtual -Wconversion -Wno-sign-conversion -Wformat=2)
# QT_NO_CAST_FROM_BYTEARRAY keeps bytes and text apart; foreach is a macro that hides copies.
target_compile_definitions(velor_flags INTERFACE QT_NO_CAST_FROM_BYTEARRAY QT_NO_FOREACH
    QT_NO_KEYWORDS)
target_include_directories(velor_flags INTERFACE "${PROJECT_SOURCE_DIR}")
if(VELOR_SANITIZE)
  target_compile_options(velor_flags INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer
      -fno-sanitize-recover=undefined)
  target_link_options(velor_flags INTERFACE -fsanitize=address,undefined)
endif()

# Reading the toolkit's headers takes a compiler most of its time, so the common ones are compiled once
# for all targets that link the same part of it. A source includes what it uses all the same: with
# VELOR_PRECOMPILED_HEADERS off it builds too, as a compiler cache wants it.
if(VELOR_PRECOMPILED_HEADERS)
  function(velor_headers name)
    cmake_parse_arguments(ARG "" "" "HEADERS;LINKS" ${ARGN})
    add_library(velor_headers_${name} OBJECT "${PROJECT_SOURCE_DIR}/cmake/headers.cpp")
    target_link_libraries(velor_headers_${name} PRIVATE velor_flags ${ARG_LINKS})
    target_precompile_headers(velor_headers_${name} PRIVATE ${ARG_HEADERS})
    set_target_properties(velor_headers_${name} PROPERTIES AUTOMOC OFF AUTORCC OFF)
  endfunction()
  set(core_headers <QByteArray> <QDir> <QFile> <QFileInfo> <QHash> <QString> <QStringList> <QVariant>
      <algorithm> <chrono> <functional> <map> <memory> <optional> <utility> <vector>)
  set(widget_headers ${core_headers} <QAction> <QApplication> <QComboBox> <QDialog> <QMdiArea> <QPointer>
      <QTimer> <QUrl> <QVBoxLayout> <QWidget>)
  velor_headers(core HEADERS ${core_headers} LINKS Qt6::Core)
  velor_headers(widgets HEADERS ${widget_headers} LINKS Qt6::Widgets)
  if(BUILD_TESTING)
    velor_headers(tests HEADERS ${widget_headers} <gmock/gmock.h> <gtest/gtest.h>
      LINKS Qt6::Widgets GTest::gtest GTest::gmock)
  endif()
endif()
function(velor_use_headers target name)
  if(VELOR_PRECOMPILED_HEADERS)
    target_precompile_headers(${target} REUSE_FROM velor_headers_${name})
  endif()
endfunction()

function(velor_library name)
  cmake_parse_arguments(ARG "" "HEADERS" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC velor_flags ${ARG_LINKS})
  if(NOT ARG_HEADERS)
    set(ARG_HEADERS core)
  endif()
  velor_use_headers(${name} ${ARG_HEADERS})
endfunction()

# A program that people start. All of them are built by the target velor-programs and lie in
# programs/, from where run.sh takes them.
add_custom_target(velor-programs)
function(velor_program name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE velor_flags ${ARG_LINKS})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/programs")
  add_dependencies(velor-programs ${name})
endfunction()

# A GoogleTest program that runs under Qt's offscreen platform with scratch settings folders
# (tests/support/TestMain.cpp sees to both). One program is one CTest case. SERIAL is for those that
# start the engine or the program itself: they have the machine to themselves, all others run side by
# side. BESIDE is a pattern of those of its tests that have no limit of time: they are a CTest case of
# their own, which runs beside others. Programs that do not link the real parts have the label
# "plain", and the target velor-plain-tests builds them.
add_custom_target(velor-plain-tests)
function(velor_test name)
  cmake_parse_arguments(ARG "SERIAL" "BESIDE;TIMEOUT" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE velor_flags velor_test_main ${ARG_LINKS} GTest::gtest GTest::gmock)
  velor_use_headers(${name} tests)
  set(timeout 60)
  if(ARG_TIMEOUT)
    set(timeout ${ARG_TIMEOUT})
  endif()
  set(cases ${name})
  if(ARG_BESIDE)
    add_test(NAME ${name} COMMAND ${name} "--gtest_filter=-${ARG_BESIDE}")
    add_test(NAME ${name}_beside COMMAND ${name} "--gtest_filter=${ARG_BESIDE}")
    list(APPEND cases ${name}_beside)
  else()
    add_test(NAME ${name} COMMAND ${name})
  endif()
  if(VELOR_SANITIZE)
    math(EXPR timeout "4 * ${timeout}")
  endif()
  set_tests_properties(${cases} PROPERTIES TIMEOUT ${timeout}
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen;VELOR_NO_ERROR_BOX=1")
  if(ARG_SERIAL)
    set_tests_properties(${name} PROPERTIES RUN_SERIAL ON)
  elseif(NOT ARG_LINKS MATCHES "velor_(qt|app_window|startup|engine|page_check_parts|component)")
    set_tests_properties(${name} PROPERTIES LABELS plain)
    add_dependencies(velor-plain-tests ${name})
  endif()
endfunction()
