#include "Orvello/Presentations/Decks/PptxImporter.h"

#include "Tests/Support/DeckBuilder.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <vector>

namespace Orvello::PptxImporter {
namespace {

using namespace Qt::StringLiterals;
using Testing::DeckBuilder;

/// Peak memory of a process that does only this, in the system's own unit.
long peakMemoryOf(const std::function<void()>& action)
{
    const pid_t child = fork();
    if (child == 0) {
        action();
        _exit(0);
    }
    int status = -1;
    rusage usage {};
    EXPECT_EQ(wait4(child, &status, 0, &usage), child);
    EXPECT_EQ(status, 0);
    return usage.ru_maxrss;
}

TEST(PptxMemoryTest, partsMadeToNeedMemoryNeedLittle)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"deck.pptx"_s);
    constexpr qsizetype size = Limits::entrySize - 1000;
    const auto filledWith
        = [](const QByteArray& piece) { return piece.repeated(size / piece.size()); };
    QByteArray attributes;
    for (int i = 0; attributes.size() < size; ++i)
        attributes += " a" + QByteArray::number(i, 36) + "=''";
    struct Part {
        QByteArray path;
        QByteArray content;
    };
    const Part parts[] {
        { "ppt/slides/slide1.xml", "<a" + attributes + "/>" },
        { "ppt/slides/slide1.xml", filledWith("<a>") },
        { "ppt/slides/slide1.xml", "<!DOCTYPE a [" + filledWith("<!ELEMENT a ANY>") },
        { "ppt/notesSlides/notesSlide1.xml",
            "<a>" + filledWith("<p:sp><p:ph type='body'/></p:sp>") },
        { "ppt/notesSlides/notesSlide1.xml", "<p:sp><p:ph type='body'/><a:t>" + filledWith("x") },
        { "ppt/slides/_rels/slide1.xml.rels",
            "<a>" + filledWith("<Relationship Id='1' Type='2' Target='3'/>") },
        { "ppt/presentation.xml", "<a>" + filledWith("<sldId r:id='1'/>") },
    };
    const long affordable = peakMemoryOf([] {
        std::vector<char> memory(256 * 1024 * 1024, 'x');
        EXPECT_EQ(memory.back(), 'x');
    });

    for (const Part& part : parts) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(DeckBuilder().slide("A", "a").part(part.path, part.content).build());
        file.close();

        EXPECT_LT(peakMemoryOf([&] { static_cast<void>(importNotes(path)); }), affordable)
            << part.content.first(40).toStdString();
    }
}

} // namespace
} // namespace Orvello::PptxImporter
