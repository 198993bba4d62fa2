#include "Orvello/Library/Store/LibraryStore.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Foundation/Assign.h"
#include "Orvello/Foundation/AtomicFile.h"
#include "Orvello/Foundation/DefaultsValue.h"
#include "Orvello/Foundation/PrivateFolder.h"
#include "Orvello/Library/Records/UuidText.h"
#include "Orvello/Library/Records/WelcomeScript.h"
#include "Orvello/Platform/Early/UserDefaults.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

const QString activeScriptIDKey = u"activeScriptID"_s;
const QString singleScriptKey = u"script"_s; // The one script of the first versions.

constexpr double secondsBetweenRetries = 2;
constexpr double secondsBetweenCopies = 60.0 * 60;

QString inExistingFolder(const QString& path)
{
    makePrivateFolder(QFileInfo(path).path());
    return path;
}

/// A leading dot starts a hidden file's name, not an extension.
QString withoutExtension(const QString& fileName)
{
    const qsizetype dot = fileName.lastIndexOf(u'.');
    return dot > 0 ? fileName.first(dot) : fileName;
}

} // namespace

LibraryStore::LibraryStore(UserDefaults& defaults, const Folders& folders, TimeSource& time,
    const Facts& facts, QObject* parent)
    : QObject(parent)
    , m_defaults(defaults)
    , m_time(time)
    , m_file(folders)
    , m_lock(inExistingFolder(m_file.path()) + u".lock"_s)
    , m_rescue(m_file.path())
    , m_deleted(QFileInfo(m_file.path()).path() + u"/deleted.json"_s)
    , m_deckFiles(QFileInfo(m_file.path()).path() + u"/deck-files.json"_s)
    , m_saveState(m_lock.isTaken() ? SaveState::Foreign : SaveState::Saved)
    , m_scripts(m_file.load())
{
    if (!m_lock.isTaken())
        rescueLibrary();
    m_deleted.load(time.date());
    loadDeckFiles();
    if (const auto storedID = DefaultsValue::asString(m_defaults.value(activeScriptIDKey)))
        assignActiveScriptID(UuidText::parse(*storedID));
    if (m_scripts.isEmpty())
        makeFirstScript(facts);
    if (!m_activeScriptID)
        assignActiveScriptID(firstScriptID());
}

LibraryStore::~LibraryStore()
{
    if (m_saveState == SaveState::Saved && !m_scripts.isEmpty())
        m_file.keepCopy();
}

/// Sees to what an earlier run left, before anything is written.
void LibraryStore::rescueLibrary()
{
    const QString path = m_file.path();
    const QStringList copies { AtomicFile::flushedName(path), m_file.copyPath() };
    AtomicFile::removeLeftovers(path);
    if (m_file.found() == LibraryFile::Found::Damage)
        m_rescue.keepDamaged(copies, m_time.date());
    else if (m_file.found() == LibraryFile::Found::Nothing)
        m_rescue.findMissing(copies, m_time.date());
    else if (!m_scripts.isEmpty())
        m_file.keepCopy();
    m_hourlyCopy = m_time.callEvery(secondsBetweenCopies, [this] {
        if (m_saveState == SaveState::Saved && !m_scripts.isEmpty())
            m_file.keepCopy();
    });
}

void LibraryStore::makeFirstScript(const Facts& facts)
{
    const auto singleScript = DefaultsValue::asString(m_defaults.value(singleScriptKey));
    const Script script = singleScript
        //: The title of the only script of a user of the first versions.
        ? Script::create(tr("My Script"), *singleScript, m_time.date())
        : Script::create(WelcomeScript::title(), WelcomeScript::body(facts), m_time.date());
    m_scripts = { script };
    assignActiveScriptID(script.id);
    m_defaults.remove(singleScriptKey);
    persistActiveScriptID();
    if (m_saveState != SaveState::Foreign)
        takeNoteOf(m_file.save(m_scripts));
}

void LibraryStore::setActiveScriptID(std::optional<QUuid> id)
{
    if (assignActiveScriptID(id))
        Q_EMIT activeScriptIDChanged();
}

bool LibraryStore::assignActiveScriptID(std::optional<QUuid> id)
{
    const bool isAnother = assign(m_activeScriptID, id);
    persistActiveScriptID();
    return isAnother;
}

void LibraryStore::persistActiveScriptID()
{
    if (m_activeScriptID)
        m_defaults.setValue(activeScriptIDKey, UuidText::format(*m_activeScriptID));
    else
        m_defaults.remove(activeScriptIDKey);
}

const Script* LibraryStore::activeScript() const
{
    const auto active = std::ranges::find(
        m_scripts, m_activeScriptID, [](const Script& script) { return std::optional(script.id); });
    if (active != m_scripts.end())
        return &*active;
    return m_scripts.isEmpty() ? nullptr : &m_scripts.first();
}

std::optional<QUuid> LibraryStore::firstScriptID() const
{
    return m_scripts.isEmpty() ? std::nullopt : std::optional(m_scripts.first().id);
}

QUuid LibraryStore::addScript()
{
    //: The title of a new script.
    return addOnTop(Script::create(tr("Untitled"), {}, m_time.date()));
}

QUuid LibraryStore::addOnTop(const Script& script)
{
    insert(0, script);
    return script.id;
}

/// Makes it active, too.
void LibraryStore::insert(qsizetype row, const Script& script)
{
    m_scripts.insert(row, script);
    const bool isNewlyActive = assignActiveScriptID(script.id);
    publish({ .kind = LibraryChange::Kind::Inserted, .row = row, .id = script.id });
    if (isNewlyActive)
        Q_EMIT activeScriptIDChanged();
}

void LibraryStore::publish(const LibraryChange& change)
{
    if (m_saveState != SaveState::Foreign) {
        m_file.take(m_scripts, change);
        save();
    }
    Q_EMIT scriptsChanged(change);
}

/// What was deleted goes first: a library without a script must not be all that there is of it.
void LibraryStore::save()
{
    if (!m_deleted.isSaved())
        m_deleted.save();
    takeNoteOf(m_deleted.isSaved() && m_file.save());
}

std::error_code LibraryStore::problem() const
{
    return m_deleted.isSaved() ? m_file.problem() : m_deleted.problem();
}

void LibraryStore::takeNoteOf(bool isSaved)
{
    if (isSaved)
        m_retry.reset();
    else if (!m_retry)
        m_retry = m_time.callEvery(secondsBetweenRetries, [this] { save(); });
    const std::error_code before = std::exchange(m_saveProblem, problem());
    if (assign(m_saveState, isSaved ? SaveState::Saved : SaveState::Failing)
        || before != m_saveProblem)
        Q_EMIT saveStateChanged();
}

void LibraryStore::remove(QUuid id)
{
    const auto hasID = [id](const Script& script) { return script.id == id; };
    const auto remaining = std::ranges::find_if_not(std::as_const(m_scripts), hasID);
    const bool isAnotherActive = m_activeScriptID == id
        && assignActiveScriptID(
            remaining == m_scripts.cend() ? std::nullopt : std::optional(remaining->id));

    auto script = std::ranges::find_if(std::as_const(m_scripts), hasID);
    if (script == m_scripts.cend() && m_saveState != SaveState::Foreign)
        takeNoteOf(m_file.save(m_scripts));
    while (script != m_scripts.cend()) {
        const qsizetype row = script - m_scripts.cbegin();
        // First, so that at each moment it is in one of the two files at least.
        keepDeleted({ *script, m_time.date(), row });
        m_scripts.removeAt(row);
        publish({ .kind = LibraryChange::Kind::Removed, .row = row, .id = id });
        // A file may hold the id twice.
        script = std::ranges::find_if(std::as_const(m_scripts), hasID);
    }

    if (isAnotherActive)
        Q_EMIT activeScriptIDChanged();
}

void LibraryStore::keepDeleted(const DeletedScript& deleted)
{
    if (m_saveState == SaveState::Foreign)
        return;
    m_deleted.add(deleted);
    Q_EMIT deletedScriptsChanged();
}

void LibraryStore::restore(qsizetype place)
{
    if (place < 0 || place >= m_deleted.scripts().size())
        return;
    const DeletedScript deleted = m_deleted.scripts()[place];
    insert(std::clamp<qsizetype>(deleted.row, 0, m_scripts.size()), deleted.script);
    // The library must be on the disk before the other file forgets the script.
    m_file.flush();
    if (m_saveState == SaveState::Saved)
        m_deleted.remove(place);
    Q_EMIT deletedScriptsChanged();
}

void LibraryStore::move(qsizetype from, qsizetype to)
{
    const qsizetype last = m_scripts.size() - 1;
    if (last < 0)
        return;
    from = std::clamp<qsizetype>(from, 0, last);
    to = std::clamp<qsizetype>(to, 0, last);
    if (from == to)
        return;
    m_scripts.move(from, to);
    publish(
        { .kind = LibraryChange::Kind::Moved, .row = from, .newRow = to, .id = m_scripts[to].id });
}

void LibraryStore::duplicate(QUuid id)
{
    const auto original = std::ranges::find(std::as_const(m_scripts), id, &Script::id);
    if (original == m_scripts.cend())
        return;
    Script copy = *original;
    copy.id = QUuid::createUuid();
    if (const DeckFile* const file = deckFile(id))
        m_deckFiles.set(copy.id, DeckFile(*file));
    //: The title of a copied script. %1: the title of the original.
    copy.title = copy.title.isEmpty() ? QString() : tr("%1 copy").arg(copy.title);
    copy.createdAt = copy.updatedAt = m_time.date();
    insert(original - m_scripts.cbegin() + 1, copy);
}

void LibraryStore::takeOfferedCopy()
{
    const QList<Script> copied = m_rescue.scripts();
    const qsizetype firstRow = m_scripts.size();
    m_scripts += copied;
    takeNoteOf(m_file.save(m_scripts));
    for (qsizetype i = 0; i < copied.size(); ++i)
        Q_EMIT scriptsChanged(
            { .kind = LibraryChange::Kind::Inserted, .row = firstRow + i, .id = copied[i].id });
    if (!copied.isEmpty())
        setActiveScriptID(copied.first().id);
    m_file.flush();
    if (m_saveState == SaveState::Saved)
        closeRescue();
}

void LibraryStore::closeRescue()
{
    m_rescue.close(m_time.date());
    Q_EMIT rescueChanged();
}

void LibraryStore::updateActive(
    const std::optional<QString>& title, const std::optional<QString>& body)
{
    Script* const script = editedScript();
    if (!script)
        return;

    LibraryChange change;
    if (title) {
        change.hasNewTitle = *title != script->title;
        script->title = *title;
    }
    if (body && *body != script->body) {
        change.body = TextEdit { 0, script->body.size(), body->size() };
        script->body = *body;
    }
    edit(*script, change);
}

void LibraryStore::editActive(qsizetype position, qsizetype removed, const QString& inserted)
{
    Script* const script = editedScript();
    if (!script)
        return;

    Q_ASSERT(position >= 0 && removed >= 0 && position + removed <= script->body.size());
    script->body.replace(position, removed, inserted);
    edit(*script, { .body = TextEdit { position, removed, inserted.size() } });
}

/// The active script, or the first if none is active. Null if that id names no script.
Script* LibraryStore::editedScript()
{
    const std::optional<QUuid> id = m_activeScriptID ? m_activeScriptID : firstScriptID();
    const auto script = std::ranges::find(
        m_scripts, id, [](const Script& candidate) { return std::optional(candidate.id); });
    return script == m_scripts.end() ? nullptr : &*script;
}

void LibraryStore::edit(Script& script, LibraryChange change)
{
    script.updatedAt = m_time.date();
    change.kind = LibraryChange::Kind::Edited;
    change.row = &script - m_scripts.constData();
    change.id = script.id;
    publish(change);
}

Result<QUuid, PptxImporter::ImportError> LibraryStore::importPptx(
    const QString& path, const std::optional<QString>& source)
{
    const auto deck = PptxImporter::importDeck(path);
    if (!deck)
        return Failure { deck.error() };
    return addReadDeck(path, *deck, source);
}

QUuid LibraryStore::addReadDeck(
    const QString& path, const PptxImporter::Deck& deck, const std::optional<QString>& source)
{
    const QString fileName = QFileInfo(path).fileName();
    AppLog::write("Orvello IMPORT_PPTX ok slides=%d file=%@", deck.slides.size(), fileName);
    const Script script
        = deckScript(withoutExtension(fileName), deck.slides, source.value_or(fileName));
    // First: whoever hears of the script may ask for its file.
    m_deckFiles.set(script.id, { QFileInfo(path).absoluteFilePath(), deck.stamp });
    addOnTop(script);
    tellLimits(deck);
    return script.id;
}

void LibraryStore::tellLimits(const PptxImporter::Deck& deck)
{
    if (deck.unread.isEmpty())
        return;
    const QString slides = PptxImporter::slideRanges(deck.unread);
    AppLog::write("Orvello IMPORT_PPTX limit: notes of slides %@ could not be read", slides);
    Q_EMIT notesLeftOut(slides);
}

/// Those of deleted scripts, too, which may come back.
void LibraryStore::loadDeckFiles()
{
    if (m_saveState == SaveState::Foreign)
        m_deckFiles.keepToMemory();
    m_deckFiles.load([this](QUuid id) {
        const auto hasID = [id](const Script& script) { return script.id == id; };
        return std::ranges::any_of(m_scripts, hasID)
            || std::ranges::any_of(m_deleted.scripts(), hasID, &DeletedScript::script);
    });
}

std::optional<QUuid> LibraryStore::scriptOfDeckFile(const QString& path) const
{
    for (const Script& script : m_scripts) {
        const DeckFile* const file = deckFile(script.id);
        if (script.slides && file && file->path == path)
            return script.id;
    }
    return std::nullopt;
}

QList<qint64> LibraryStore::lostNotes(const Script& script, const QList<SlideNote>& slides)
{
    QSet<QString> notes;
    QSet<QString> titles;
    for (const SlideNote& slide : slides) {
        if (slide.notes.isEmpty())
            continue;
        notes.insert(slide.notes);
        if (slide.title)
            titles.insert(*slide.title);
    }
    QList<qint64> lost;
    const QList<SlideNote> before = script.slides.value_or(QList<SlideNote>());
    for (qsizetype i = 0; i < before.size(); ++i) {
        const SlideNote& slide = before[i];
        const bool hasPlace = i < slides.size() && !slides[i].notes.isEmpty();
        if (!slide.notes.isEmpty() && !notes.contains(slide.notes) && !hasPlace
            && !(slide.title && titles.contains(*slide.title)))
            lost.append(slide.index);
    }
    return lost;
}

void LibraryStore::updateDeck(QUuid id, const QString& path, const PptxImporter::Deck& deck)
{
    const auto script = std::ranges::find(m_scripts, id, &Script::id);
    if (script == m_scripts.end() || !script->slides)
        return;
    const DeckFile* const known = deckFile(id);
    const QString formerName = known ? QFileInfo(known->path).fileName() : QString();
    const QString fileName = QFileInfo(path).fileName();
    m_deckFiles.set(id, { QFileInfo(path).absoluteFilePath(), deck.stamp });
    AppLog::write("Orvello IMPORT_PPTX updated slides=%d file=%@", deck.slides.size(), fileName);
    tellLimits(deck);

    LibraryChange change;
    if (*script->slides != deck.slides) {
        const QString body = joinedBody(deck.slides);
        if (script->body != joinedBody(*script->slides)
            || !lostNotes(*script, deck.slides).isEmpty())
            keepVersion(*script);
        change.hasNewSlides = true;
        change.body = TextEdit { 0, script->body.size(), body.size() };
        script->slides = deck.slides;
        script->body = body;
    }
    if (formerName != fileName && !formerName.isEmpty()) {
        if (script->deckSource == formerName)
            script->deckSource = fileName;
        if (script->title == withoutExtension(formerName)) {
            script->title = withoutExtension(fileName);
            change.hasNewTitle = true;
        }
    }
    if (change.hasNewSlides || change.hasNewTitle)
        edit(*script, change);
}

/// As a script of its own, because the library still has one with that id.
void LibraryStore::keepVersion(const Script& script)
{
    Script version = script;
    version.id = QUuid::createUuid();
    //: The title of a former version of a script. %1: the title of the script.
    version.title = tr("%1 (before the update)").arg(script.title);
    keepDeleted({ version, m_time.date(), &script - m_scripts.constData() + 1 });
}

QUuid LibraryStore::addDeck(
    const QString& title, const QList<SlideNote>& slides, const QString& source)
{
    return addOnTop(deckScript(title, slides, source));
}

Script LibraryStore::deckScript(
    const QString& title, const QList<SlideNote>& slides, const QString& source) const
{
    Script script = Script::create(title, joinedBody(slides), m_time.date());
    script.slides = slides;
    script.deckSource = source;
    return script;
}

} // namespace Orvello
