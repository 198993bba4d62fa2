/// How long an import takes, and how much memory, compared with the least that any importer must
/// do: inflating the same entries and parsing their XML without looking at it. The decks repeat a
/// slide and a notes page that LibreOffice wrote, with 2 KB of notes on each.

#include "Orvello/Presentations/Decks/PptxImporter.h"
#include "Orvello/Presentations/Decks/ZipArchive.h"
#include "Tests/Support/DeckBuilder.h"

#include <QFile>
#include <QTemporaryDir>

#include <expat.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <zip.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

namespace {

using namespace Orvello;
using namespace Qt::StringLiterals;

constexpr double limitOfRatio = 1.3;

/// Two kilobytes of words, different for each slide.
QByteArray notesText(int number)
{
    constexpr std::array words { "deck", "speaker", "audience", "because", "quarter", "and", "the",
        "slowly", "remember", "pause", "question", "of", "camera", "voice", "to", "evening" };
    QByteArray text;
    for (auto state = static_cast<quint32>(number); text.size() < 2048;) {
        state = state * 1'664'525 + 1'013'904'223;
        text += words[state >> 28];
        text += ' ';
    }
    return text;
}

void writeDeck(const QString& path, int slides)
{
    QFile model(QStringLiteral(ORVELLO_TEST_DECKS) + u"/twelve-slides.pptx"_s);
    if (!model.open(QIODevice::ReadOnly))
        std::exit(1);
    const auto archive = PptxImporter::ZipArchive::open(model);
    const QByteArray slide = archive->data(u"ppt/slides/slide1.xml"_s)->toByteArray();
    const QByteArray notes = archive->data(u"ppt/notesSlides/notesSlide1.xml"_s)->toByteArray();
    const QByteArray rels = archive->data(u"ppt/slides/_rels/slide1.xml.rels"_s)->toByteArray();

    Testing::DeckBuilder deck;
    for (int number = 1; number <= slides; ++number) {
        const QByteArray text = QByteArray::number(number);
        deck.slideWithoutNotes("");
        deck.part("ppt/slides/slide" + text + ".xml",
            QByteArray(slide).replace(">Slide 1<", ">Slide " + text + "<"));
        deck.part("ppt/slides/_rels/slide" + text + ".xml.rels",
            QByteArray(rels).replace("notesSlide1", "notesSlide" + text));
        deck.part("ppt/notesSlides/notesSlide" + text + ".xml",
            QByteArray(notes).replace("Notes of slide 1.", notesText(number)));
    }
    QFile file(path);
    const QByteArray bytes = deck.build();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        std::exit(1);
}

void XMLCALL ignoreStart(void*, const XML_Char*, const XML_Char**) { }
void XMLCALL ignoreEnd(void*, const XML_Char*) { }
void XMLCALL ignoreText(void*, const XML_Char*, int) { }

void inflateAndParse(zip_t* archive, const std::string& path)
{
    const zip_int64_t index = zip_name_locate(archive, path.c_str(), 0);
    zip_file_t* const file = zip_fopen_index(archive, static_cast<zip_uint64_t>(index), 0);
    if (!file)
        std::exit(1);
    XML_ParserStruct* const parser = XML_ParserCreate(nullptr);
    XML_SetElementHandler(parser, ignoreStart, ignoreEnd);
    XML_SetCharacterDataHandler(parser, ignoreText);
    std::array<char, 16'384> chunk;
    zip_int64_t count = 0;
    do {
        count = zip_fread(file, chunk.data(), chunk.size());
        if (count < 0
            || XML_Parse(parser, chunk.data(), static_cast<int>(count), count == 0)
                != XML_STATUS_OK)
            std::exit(1);
    } while (count > 0);
    XML_ParserFree(parser);
    zip_fclose(file);
}

/// The same entries as an import reads, in the same order, with libzip's own file reading.
void inflateAndParseAll(const QString& path, int slides)
{
    zip_t* const archive = zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY, nullptr);
    inflateAndParse(archive, "ppt/presentation.xml");
    inflateAndParse(archive, "ppt/_rels/presentation.xml.rels");
    for (int number = 1; number <= slides; ++number) {
        const std::string text = std::to_string(number);
        inflateAndParse(archive, "ppt/slides/slide" + text + ".xml");
        inflateAndParse(archive, "ppt/slides/_rels/slide" + text + ".xml.rels");
        inflateAndParse(archive, "ppt/notesSlides/notesSlide" + text + ".xml");
    }
    zip_discard(archive);
}

QList<SlideNote> import(const QString& path, int slides)
{
    const auto notes = PptxImporter::importNotes(path);
    if (!notes || notes->size() != slides || notes->last().notes.size() < 2000)
        std::exit(1);
    return *notes;
}

/// Milliseconds of processor time, which other programs on the machine disturb least.
double processorTime(const std::function<void()>& action)
{
    const std::clock_t start = std::clock();
    action();
    return 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

double megabytes(double bytes) { return bytes / (1024.0 * 1024.0); }

double sizeOf(const QList<SlideNote>& slides)
{
    constexpr qsizetype header = 16;
    qsizetype size = slides.capacity() * static_cast<qsizetype>(sizeof(SlideNote));
    for (const SlideNote& slide : slides) {
        size += header + slide.notes.capacity() * 2;
        size += slide.title ? header + slide.title->capacity() * 2 : 0;
    }
    return static_cast<double>(size);
}

/// Runs in a process of its own and returns that process's peak memory, in the system's unit.
double inChild(const std::function<void()>& action)
{
    static_cast<void>(std::fflush(stdout));
    const pid_t child = fork();
    if (child == 0) {
        action();
        static_cast<void>(std::fflush(stdout));
        _exit(0);
    }
    int status = -1;
    rusage usage {};
    if (wait4(child, &status, 0, &usage) != child || status != 0)
        std::exit(1);
    return static_cast<double>(usage.ru_maxrss);
}

/// Peak memory of the action in bytes. Systems differ in the unit, so it is measured along.
double peakMemory(const std::function<void()>& action)
{
    constexpr std::size_t yardstick = 67'108'864;
    const double base = inChild([] {});
    const double unit = yardstick / (inChild([] {
        std::vector<char> memory(yardstick, 1);
        if (memory[yardstick / 2] != 1)
            std::exit(1);
    }) - base);
    return (inChild(action) - base) * unit;
}

void measureTime(const QString& path, int slides)
{
    const int rounds = slides > 10'000 ? 3 : 15;
    double fastestImport = 1e9;
    double fastestParsing = 1e9;
    for (int round = 0; round < rounds; ++round) {
        fastestParsing
            = std::min(fastestParsing, processorTime([&] { inflateAndParseAll(path, slides); }));
        fastestImport = std::min(fastestImport, processorTime([&] { import(path, slides); }));
    }
    std::printf("%6d slides: importNotes %.1f ms, inflate+SAX only %.1f ms\n", slides,
        fastestImport, fastestParsing);
    std::printf("%6d slides: importNotes / inflate+SAX only: %.2f (limit %.1f)\n", slides,
        fastestImport / fastestParsing, limitOfRatio);
}

void measureMemory(const QString& path, int slides)
{
    std::printf("%6d slides: peak memory of inflate+SAX only %.1f MB\n", slides,
        megabytes(peakMemory([&] { inflateAndParseAll(path, slides); })));
    std::printf("%6d slides: peak memory of importNotes %.1f MB\n", slides,
        megabytes(peakMemory([&] { import(path, slides); })));
    inChild([&] {
        std::printf("%6d slides: the result of importNotes %.1f MB\n", slides,
            megabytes(sizeOf(import(path, slides))));
    });
}

} // namespace

int main()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"deck.pptx"_s);
    for (const int slides : { 200, 2'000, 20'000 }) {
        inChild([&] { writeDeck(path, slides); });
        inChild([&] { measureTime(path, slides); });
        measureMemory(path, slides);
    }
    return 0;
}
