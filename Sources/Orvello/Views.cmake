# The QML module: the views of every subsystem, each in its subsystem's folder, and the types they see the services as
# (Shell/Views/QmlTypes.h). Link Orvello::ShellViews, add the import path "qrc:/qt/qml", load "qrc:/qt/qml/Orvello/<View>.qml".

get_property(files GLOBAL PROPERTY ORVELLO_VIEWS)
list(APPEND files ${CMAKE_CURRENT_SOURCE_DIR}/Shell/Views/SymbolButton.qml)
# The module is flat, whatever folder a view lies in.
set(views)
foreach(file ${files})
    cmake_path(RELATIVE_PATH file OUTPUT_VARIABLE view)
    cmake_path(GET view FILENAME name)
    set_source_files_properties(${view} PROPERTIES QT_RESOURCE_ALIAS ${name})
    list(APPEND views ${view})
endforeach()

set_source_files_properties(Settings/WelcomeTour/TourStyle.qml PROPERTIES QT_QML_SINGLETON_TYPE TRUE)

qt_add_library(OrvelloViews STATIC)
qt_add_qml_module(
    OrvelloViews
    URI Orvello
    VERSION 1.0
    RESOURCE_PREFIX /qt/qml
    DEPENDENCIES QtQuick QtQuick.Controls QtQuick.Layouts QtQml.Models
    OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/qml/Orvello
    SOURCES Shell/Views/AccessibleButton.cpp
            Shell/Views/AccessibleButton.h
            Shell/Views/QmlTypes.h
            Shell/Views/Symbol.cpp
            Shell/Views/Symbol.h
    QML_FILES ${views})

# The C++ that Qt makes of each view takes seconds to compile, nearly all of them for the same headers.
get_target_property(viewSources OrvelloViews SOURCES)
list(FILTER viewSources INCLUDE REGEX "^Shell/")
set_source_files_properties(${viewSources} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
set_target_properties(OrvelloViews PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 16)

file(GLOB icons CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/Resources/Icons/*.svg)
qt_add_resources(
    OrvelloViews OrvelloIcons
    PREFIX /Orvello/Icons
    BASE ${PROJECT_SOURCE_DIR}/Resources/Icons
    FILES ${icons})
target_include_directories(OrvelloViews PRIVATE Shell/Views) # The generated registration includes by name alone.
orvello_name_folder(name Shell/Views)
set(dependencies
    Orvello::PromptingView
    Orvello::PresentationsSlideshow
    Orvello::ShellCommands
    Orvello::LibraryWindow
    Orvello::Voice
    Orvello::SettingsWindow
    Orvello::PromptingEngine
    Orvello::ShellUpdates
    Orvello::SettingsStore
    Orvello::PresentationsPresenters
    Orvello::PromptingText
    Orvello::PlatformDesktop
    Orvello::PlatformSound
    Orvello::PlatformEarly
    Orvello::LibraryRecords
    Orvello::SettingsWelcomeTour
    Orvello::Foundation)
orvello_draw(Sources/Orvello/Shell/Views ShellViews ${dependencies})
orvello_roots(roots Orvello::ShellViews ${dependencies})
target_include_directories(OrvelloViews PRIVATE ${roots})
target_link_libraries(OrvelloViews PUBLIC OrvelloBase ${dependencies} Qt6::Quick Qt6::Svg)

# A static QML module needs its plugin linked as well.
add_library(OrvelloViewsAndPlugin INTERFACE)
target_link_libraries(OrvelloViewsAndPlugin INTERFACE OrvelloViews OrvelloViewsplugin)
add_library(Orvello::ShellViews ALIAS OrvelloViewsAndPlugin)
