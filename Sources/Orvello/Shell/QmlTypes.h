#pragma once

#include "Orvello/Prompting/Card.h"
#include "Orvello/Prompting/LevelMeter.h"
#include "Orvello/Prompting/PromptLines.h"
#include "Orvello/Prompting/PromptText.h"
#include "Orvello/Prompting/PrompterStatus.h"
#include "Orvello/Prompting/ScrollEngine.h"
#include "Orvello/Prompting/ShareWarning.h"
#include "Orvello/Prompting/SlideStatus.h"
#include "Orvello/Prompting/Symbol.h"
#include "Orvello/Settings/SettingsStore.h"

#include <QtQml/qqml.h>

/// What the views know the services as. The services' own folders need no QML.
namespace Orvello::QmlTypes {

struct CardType {
    Q_GADGET
    QML_FOREIGN(Orvello::Card)
    QML_NAMED_ELEMENT(Card)
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

struct PrompterStatusType {
    Q_GADGET
    QML_FOREIGN(Orvello::PrompterStatus)
    QML_NAMED_ELEMENT(PrompterStatus)
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

struct SymbolType {
    Q_GADGET
    QML_FOREIGN(Orvello::Symbol)
    QML_NAMED_ELEMENT(Symbol)
};

} // namespace Orvello::QmlTypes
