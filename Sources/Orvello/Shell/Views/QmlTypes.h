#pragma once

#include "Orvello/Library/Window/LibraryViewModel.h"
#include "Orvello/Platform/Desktop/AssignedKeys.h"
#include "Orvello/Platform/Desktop/Compositing.h"
#include "Orvello/Platform/Early/Facts.h"
#include "Orvello/Presentations/Slideshow/ImpressPresenter.h"
#include "Orvello/Prompting/Engine/ReadingClock.h"
#include "Orvello/Prompting/Engine/ReadingPace.h"
#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Prompting/Text/PromptLines.h"
#include "Orvello/Prompting/View/CardStyle.h"
#include "Orvello/Prompting/View/LevelMeter.h"
#include "Orvello/Prompting/View/OtherDeckNotice.h"
#include "Orvello/Prompting/View/PromptText.h"
#include "Orvello/Prompting/View/PrompterStatus.h"
#include "Orvello/Prompting/View/RoundedBox.h"
#include "Orvello/Prompting/View/ShareWarning.h"
#include "Orvello/Prompting/View/SlideStatus.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Orvello/Settings/WelcomeTour/WelcomeTour.h"
#include "Orvello/Settings/Window/SettingsForm.h"
#include "Orvello/Shell/Commands/ShortcutList.h"
#include "Orvello/Shell/Updates/UpdateController.h"
#include "Orvello/Voice/SensitivityTest.h"
#include "Orvello/Voice/VoiceActivityEngine.h"

#include <QtQml/qqml.h>

/// The names by which the views know the services. The services' own folders need no QML.
namespace Orvello::QmlTypes {

struct FactsType {
    Q_GADGET
    QML_FOREIGN(Orvello::Facts)
    QML_VALUE_TYPE(facts)
};

struct ShortcutListType {
    Q_GADGET
    QML_FOREIGN(Orvello::ShortcutList)
    QML_NAMED_ELEMENT(ShortcutList)
    QML_UNCREATABLE("The program makes it.")
};

struct AssignedKeysType {
    Q_GADGET
    QML_FOREIGN(Orvello::AssignedKeys)
    QML_NAMED_ELEMENT(AssignedKeys)
    QML_UNCREATABLE("The program makes it.")
};

struct CompositingType {
    Q_GADGET
    QML_FOREIGN(Orvello::Compositing)
    QML_NAMED_ELEMENT(Compositing)
    QML_UNCREATABLE("The program makes it.")
};

struct RoundedBoxType {
    Q_GADGET
    QML_FOREIGN(Orvello::RoundedBox)
    QML_NAMED_ELEMENT(RoundedBox)
};

struct CardStyleType {
    Q_GADGET
    QML_FOREIGN(Orvello::CardStyle)
    QML_NAMED_ELEMENT(CardStyle)
    QML_SINGLETON
};

struct ScrollEngineType {
    Q_GADGET
    QML_FOREIGN(Orvello::ScrollEngine)
    QML_NAMED_ELEMENT(ScrollEngine)
    QML_UNCREATABLE("The program makes it.")
};

struct SettingsStoreType {
    Q_GADGET
    QML_FOREIGN(Orvello::SettingsStore)
    QML_NAMED_ELEMENT(SettingsStore)
    QML_UNCREATABLE("The program makes it.")
};

struct PromptLinesType {
    Q_GADGET
    QML_FOREIGN(Orvello::PromptLines)
    QML_NAMED_ELEMENT(PromptLines)
    QML_UNCREATABLE("The program makes it.")
};

struct PromptTextType {
    Q_GADGET
    QML_FOREIGN(Orvello::PromptText)
    QML_NAMED_ELEMENT(PromptText)
};

struct DeckFileBarType {
    Q_GADGET
    QML_FOREIGN(Orvello::DeckFileBar)
    QML_NAMED_ELEMENT(DeckFileBar)
    QML_UNCREATABLE("The program makes it.")
};

struct OtherDeckNoticeType {
    Q_GADGET
    QML_FOREIGN(Orvello::OtherDeckNotice)
    QML_NAMED_ELEMENT(OtherDeckNotice)
    QML_UNCREATABLE("The program makes it.")
};

struct ReadingClockType {
    Q_GADGET
    QML_FOREIGN(Orvello::ReadingClock)
    QML_NAMED_ELEMENT(ReadingClock)
    QML_UNCREATABLE("The program makes it.")
};

struct ReadingPaceType {
    Q_GADGET
    QML_FOREIGN(Orvello::ReadingPace)
    QML_NAMED_ELEMENT(ReadingPace)
    QML_UNCREATABLE("The program makes it.")
};

struct PrompterStatusType {
    Q_GADGET
    QML_FOREIGN(Orvello::PrompterStatus)
    QML_NAMED_ELEMENT(PrompterStatus)
    QML_UNCREATABLE("The program makes it.")
};

struct WelcomeTourType {
    Q_GADGET
    QML_FOREIGN(Orvello::WelcomeTour)
    QML_NAMED_ELEMENT(WelcomeTour)
    QML_UNCREATABLE("The program makes it.")
};

struct SettingsFormType {
    Q_GADGET
    QML_FOREIGN(Orvello::SettingsForm)
    QML_NAMED_ELEMENT(SettingsForm)
    QML_UNCREATABLE("The program makes it.")
};

struct ImpressPresenterType {
    Q_GADGET
    QML_FOREIGN(Orvello::ImpressPresenter)
    QML_NAMED_ELEMENT(ImpressPresenter)
    QML_UNCREATABLE("The program makes it.")
};

struct UpdateControllerType {
    Q_GADGET
    QML_FOREIGN(Orvello::UpdateController)
    QML_NAMED_ELEMENT(UpdateController)
    QML_UNCREATABLE("The program makes it.")
};

struct SensitivityTestType {
    Q_GADGET
    QML_FOREIGN(Orvello::SensitivityTest)
    QML_NAMED_ELEMENT(SensitivityTest)
    QML_UNCREATABLE("The voice engine has one.")
};

struct VoiceActivityEngineType {
    Q_GADGET
    QML_FOREIGN(Orvello::VoiceActivityEngine)
    QML_NAMED_ELEMENT(VoiceActivityEngine)
    QML_UNCREATABLE("The program makes it.")
};

struct LevelMeterType {
    Q_GADGET
    QML_FOREIGN(Orvello::LevelMeter)
    QML_NAMED_ELEMENT(LevelMeter)
    QML_UNCREATABLE("The program makes it.")
};

struct SlideStatusType {
    Q_GADGET
    QML_FOREIGN(Orvello::SlideStatus)
    QML_NAMED_ELEMENT(SlideStatus)
    QML_UNCREATABLE("The program makes it.")
};

struct ShareWarningType {
    Q_GADGET
    QML_FOREIGN(Orvello::ShareWarning)
    QML_NAMED_ELEMENT(ShareWarning)
    QML_UNCREATABLE("The program makes it.")
};

struct DeckImportsType {
    Q_GADGET
    QML_FOREIGN(Orvello::DeckImports)
    QML_NAMED_ELEMENT(DeckImports)
    QML_UNCREATABLE("The program makes it.")
};

struct LibraryViewModelType {
    Q_GADGET
    QML_FOREIGN(Orvello::LibraryViewModel)
    QML_NAMED_ELEMENT(LibraryViewModel)
    QML_UNCREATABLE("The program makes it.")
};

struct OpenScriptsType {
    Q_GADGET
    QML_FOREIGN(Orvello::OpenScripts)
    QML_NAMED_ELEMENT(OpenScripts)
    QML_UNCREATABLE("The program makes it.")
};

struct ScriptEditorType {
    Q_GADGET
    QML_FOREIGN(Orvello::ScriptEditor)
    QML_NAMED_ELEMENT(ScriptEditor)
    QML_UNCREATABLE("The program makes it.")
};

struct ScriptListModelType {
    Q_GADGET
    QML_FOREIGN(Orvello::ScriptListModel)
    QML_NAMED_ELEMENT(ScriptListModel)
    QML_UNCREATABLE("The program makes it.")
};

struct ScriptSearchType {
    Q_GADGET
    QML_FOREIGN(Orvello::ScriptSearch)
    QML_NAMED_ELEMENT(ScriptSearch)
    QML_UNCREATABLE("The program makes it.")
};

struct DeletedScriptsModelType {
    Q_GADGET
    QML_FOREIGN(Orvello::DeletedScriptsModel)
    QML_NAMED_ELEMENT(DeletedScriptsModel)
    QML_UNCREATABLE("The program makes it.")
};

struct LibraryNoticesType {
    Q_GADGET
    QML_FOREIGN(Orvello::LibraryNotices)
    QML_NAMED_ELEMENT(LibraryNotices)
    QML_UNCREATABLE("The program makes it.")
};

} // namespace Orvello::QmlTypes
