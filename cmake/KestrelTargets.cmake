# Build settings that every target shares, and the one way in which a folder becomes a target.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

option(KESTREL_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
option(KESTREL_BENCHMARKS "Build the benchmarks" OFF)
option(KESTREL_PRECOMPILED_HEADERS "Read the commonest headers once; hides a missing #include" OFF)
option(KESTREL_FUZZ "Build the fuzz targets; needs clang" OFF)
set(KESTREL_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize takes them")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
    if(KESTREL_PRECOMPILED_HEADERS)  # which the cache takes only when told to
        list(PREPEND CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros)
    endif()
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
if(KESTREL_WARNINGS_AS_ERRORS)
    add_compile_options(-Werror)
endif()
if(KESTREL_SANITIZE)
    add_compile_options(-fsanitize=${KESTREL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${KESTREL_SANITIZE})
endif()
if(KESTREL_FUZZ)
    add_compile_definitions(QT_FORCE_ASSERTS)
endif()
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
                        QT_DISABLE_DEPRECATED_BEFORE=0x060400)

set(KESTREL_BUNDLE_DIR "${CMAKE_BINARY_DIR}/Kestrel.app")
set(KESTREL_CONTENTS_DIR "${KESTREL_BUNDLE_DIR}/Contents")
set(KESTREL_RESOURCES_DIR "${KESTREL_CONTENTS_DIR}/Resources")

# kestrel_floor(<target> <INTERFACE|PUBLIC> HEADER…): shows headers of the present folder to who links the target, under the name of
# their folder: "foundation/Fetch.h". What is not linked cannot be included.
function(kestrel_floor target scope)
    set(root "${CMAKE_BINARY_DIR}/floors/${target}")
    cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY "${CMAKE_SOURCE_DIR}" OUTPUT_VARIABLE floor)
    file(REMOVE_RECURSE "${root}")
    foreach(header ${ARGN})
        cmake_path(GET header PARENT_PATH below)
        file(MAKE_DIRECTORY "${root}/${floor}/${below}")
        file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}/${header}" "${root}/${floor}/${header}" SYMBOLIC)
    endforeach()
    target_include_directories(${target} ${scope} "${root}")
endfunction()

# kestrel_precompiled_headers(<set> LINKS … HEADERS …): reads headers once, for the targets that kestrel_precompile() names.
function(kestrel_precompiled_headers set)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS;HEADERS")
    if(KESTREL_PRECOMPILED_HEADERS)
        file(CONFIGURE OUTPUT "precompiled_${set}.cpp" CONTENT "")
        add_library(kestrel_precompiled_${set} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/precompiled_${set}.cpp")
        set_target_properties(kestrel_precompiled_${set} PROPERTIES AUTOMOC OFF AUTOUIC OFF UNITY_BUILD OFF)
        target_precompile_headers(kestrel_precompiled_${set} PRIVATE ${arg_HEADERS})
        target_link_libraries(kestrel_precompiled_${set} PRIVATE ${arg_LINKS})
    endif()
endfunction()

# kestrel_precompile(<target> <set>): the target must link what the set links.
function(kestrel_precompile target set)
    if(KESTREL_PRECOMPILED_HEADERS)
        target_precompile_headers(${target} REUSE_FROM kestrel_precompiled_${set})
    endif()
endfunction()

set(KESTREL_CORE_HEADERS <algorithm> <array> <chrono> <functional> <memory> <optional> <span> <vector>
    <QByteArray> <QDateTime> <QDir> <QFile> <QHash> <QJsonArray> <QJsonDocument> <QJsonObject> <QList> <QLocale> <QMap> <QObject>
    <QPointer> <QProcess> <QRegularExpression> <QSet> <QString> <QStringList> <QThread> <QUrl> <QVariant>)
set(KESTREL_WIDGETS_HEADERS ${KESTREL_CORE_HEADERS}
    <QAction> <QApplication> <QBoxLayout> <QImage> <QLabel> <QPainter> <QPushButton> <QWidget>)

# kestrel_library(<name> SOURCES … [PUBLIC …] [PRIVATE …])
# The static library of the present folder, and what of it others may include.
function(kestrel_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;PUBLIC;PRIVATE")
    add_library(${name} STATIC ${arg_SOURCES})
    set(headers ${arg_SOURCES})
    list(FILTER headers INCLUDE REGEX "\\.h$")
    kestrel_floor(${name} PUBLIC ${headers})
    target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE})
    if(name MATCHES "_ui$" AND NOT "Qt6::Gui" IN_LIST arg_PUBLIC)
        kestrel_precompile(${name} widgets)
    else()
        kestrel_precompile(${name} core)
    endif()
endfunction()
