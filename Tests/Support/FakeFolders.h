#pragma once

#include "Orvello/Platform/Early/Folders.h"

#include <QTemporaryDir>

namespace Orvello::Testing {

/// An application-support folder of its own for each test, removed with it.
class FakeFolders final : public Folders {
public:
    QString applicationSupport() const override { return path; }

    QTemporaryDir directory;
    QString path = directory.path();
};

} // namespace Orvello::Testing
