# The QML module: the views of every subsystem, each in its subsystem's folder, and the types they see the services as
# (Shell/QmlTypes.h). Link Orvello::Views, add the import path "qrc:/qt/qml", load "qrc:/qt/qml/Orvello/<View>.qml".

set(views
    Library/DeckNotice.qml
    Library/Divider.qml
    Library/EditorPage.qml
    Library/ImportMenu.qml
    Library/LibraryAlert.qml
    Library/LibraryView.qml
    Library/ScriptRow.qml
    Library/ScriptSidebar.qml
    Library/ScriptTitle.qml
    Library/ToolbarButton.qml
    Prompting/Capsule.qml
    Prompting/Countdown.qml
    Prompting/LevelBeam.qml
    Prompting/OneOfSeveralLabels.qml
    Prompting/PrompterView.qml
    Prompting/RecordingBadge.qml
    Prompting/ShareNotice.qml
    Prompting/SlideChip.qml
    Prompting/SmallLabel.qml
    Prompting/StatusBadge.qml
    Prompting/SymbolButton.qml
    Settings/OnboardingButton.qml
    Settings/OnboardingCloseButton.qml
    Settings/OnboardingCopyButton.qml
    Settings/OnboardingDots.qml
    Settings/OnboardingFeature.qml
    Settings/OnboardingFooter.qml
    Settings/OnboardingHeading.qml
    Settings/OnboardingIconButton.qml
    Settings/OnboardingKeyRow.qml
    Settings/OnboardingPage.qml
    Settings/OnboardingPrivacyPage.qml
    Settings/OnboardingSection.qml
    Settings/OnboardingSetupPage.qml
    Settings/OnboardingStyle.qml
    Settings/OnboardingText.qml
    Settings/OnboardingView.qml
    Settings/OnboardingWelcomePage.qml
    Settings/OnboardingZoomCard.qml
    Settings/PrivacySettings.qml
    Settings/PrompterSettings.qml
    Settings/SessionSettings.qml
    Settings/SettingsNote.qml
    Settings/SettingsPicker.qml
    Settings/SettingsRow.qml
    Settings/SettingsSection.qml
    Settings/SettingsShortcut.qml
    Settings/SettingsSlider.qml
    Settings/SettingsSwitch.qml
    Settings/SettingsToggle.qml
    Settings/SettingsView.qml
    Settings/ShortcutSettings.qml
    Settings/SlidesSettings.qml
    Settings/UpdateSettings.qml
    Settings/VoiceSettings.qml)

# The module is flat, whatever folder a view lies in.
foreach(view ${views})
    get_filename_component(name ${view} NAME)
    set_source_files_properties(${view} PROPERTIES QT_RESOURCE_ALIAS ${name})
endforeach()

set_source_files_properties(Settings/OnboardingStyle.qml PROPERTIES QT_QML_SINGLETON_TYPE TRUE)

qt_add_library(OrvelloViews STATIC)
qt_add_qml_module(
    OrvelloViews
    URI Orvello
    VERSION 1.0
    RESOURCE_PREFIX /qt/qml
    DEPENDENCIES QtQuick QtQuick.Controls QtQuick.Layouts QtQml.Models
    OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/qml/Orvello
    SOURCES Prompting/Card.cpp
            Prompting/Card.h
            Prompting/FadingTextNode.cpp
            Prompting/FadingTextNode.h
            Prompting/PromptText.cpp
            Prompting/PromptText.h
            Shell/QmlTypes.h
            Views/AccessibleButton.cpp
            Views/AccessibleButton.h
            Views/Symbol.cpp
            Views/Symbol.h
            Views/SymbolDrawing.h
            Views/TourSymbols.cpp
    QML_FILES ${views})

# The C++ that Qt makes of each view takes seconds to compile, nearly all of them for the same headers.
get_target_property(viewSources OrvelloViews SOURCES)
list(FILTER viewSources INCLUDE REGEX "^(Prompting|Shell|Views)/")
set_source_files_properties(${viewSources} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
set_target_properties(OrvelloViews PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 16)

target_include_directories(OrvelloViews PRIVATE Shell Views) # The generated registration includes by name alone.
qt_add_shaders(
    OrvelloViews OrvelloShaders
    BATCHABLE PRECOMPILE OPTIMIZED
    PREFIX /qt/qml/Orvello
    BASE Prompting
    FILES Prompting/FadingText.vert Prompting/FadingText.frag
    OUTPUTS FadingText.vert.qsb FadingText.frag.qsb)
target_link_libraries(
    OrvelloViews PUBLIC OrvelloBase Orvello::Commands Orvello::LibraryView Orvello::Prompting Orvello::Settings
                        Orvello::Voice Qt6::Quick)

# A static QML module needs its plugin linked as well.
add_library(OrvelloViewsAndPlugin INTERFACE)
target_link_libraries(OrvelloViewsAndPlugin INTERFACE OrvelloViews OrvelloViewsplugin)
add_library(Orvello::Views ALIAS OrvelloViewsAndPlugin)
