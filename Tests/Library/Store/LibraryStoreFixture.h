#pragma once

#include "Orvello/Library/Records/UuidText.h"
#include "Orvello/Library/Store/LibraryStore.h"
#include "Tests/Support/FactsOf.h"
#include "Tests/Support/FakeFolders.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/ManualTimeSource.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <memory>

namespace Orvello::Testing {

/// A library store over a scratch folder and preferences in memory, and launches of it.
class LibraryStoreFixture : public ::testing::Test {
protected:
    /// Begins a run of the program on what earlier runs left.
    LibraryStore& launch()
    {
        m_store.reset(); // Else the library is another's.
        m_store = std::make_unique<LibraryStore>(defaults, folders, time, facts);
        return *m_store;
    }

    void quit() { m_store.reset(); }

    /// A store with scripts of these titles, from the top, the last of which is active.
    LibraryStore& launchWith(const QStringList& titles)
    {
        QList<Script> scripts;
        for (const QString& title : titles)
            scripts.append(Script::create(title, QStringLiteral("Body of ") + title, { 5 }));
        LibraryFile(folders).save(scripts);
        defaults.stored.insert(
            QStringLiteral("activeScriptID"), UuidText::format(scripts.last().id));
        return launch();
    }

    static QStringList titles(const QList<Script>& scripts)
    {
        QStringList list;
        for (const Script& script : scripts)
            list.append(script.title);
        return list;
    }

    QList<Script> saved() const { return LibraryFile(folders).load(); }
    QString storedActiveID() const
    {
        return defaults.stored.value(QStringLiteral("activeScriptID")).toString();
    }

    void putFile(const QByteArray& bytes) const
    {
        QDir().mkpath(folders.path + QStringLiteral("/Orvello"));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    /// Whether the library file was written since the last call or the launch.
    bool wasSaved() const { return QFile::remove(path); }

    Facts facts = factsOfAMac();
    FakeFolders folders;
    FakeUserDefaults defaults;
    ManualTimeSource time;
    QString path = folders.path + QStringLiteral("/Orvello/scripts.json");

private:
    std::unique_ptr<LibraryStore> m_store;
};

} // namespace Orvello::Testing
