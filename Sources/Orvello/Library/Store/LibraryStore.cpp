#include "Orvello/Library/Store/LibraryStore.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Foundation/DefaultsValue.h"
#include "Orvello/Library/Records/UuidText.h"
#include "Orvello/Library/Records/WelcomeScript.h"
#include "Orvello/Platform/Early/TimeSource.h"
#include "Orvello/Platform/Early/UserDefaults.h"

#include <QFileInfo>

#include <algorithm>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

LibraryStore* sharedStore = nullptr;

const QString activeScriptIDKey = u"activeScriptID"_s;
const QString singleScriptKey = u"script"_s; // The one script of the first versions.

/// A leading dot starts a hidden file's name, not an extension.
QString withoutExtension(const QString& fileName)
{
    const qsizetype dot = fileName.lastIndexOf(u'.');
    return dot > 0 ? fileName.first(dot) : fileName;
}

} // namespace

LibraryStore& LibraryStore::shared()
{
    Q_ASSERT(sharedStore);
    return *sharedStore;
}

void LibraryStore::adoptShared(LibraryStore& store)
{
    Q_ASSERT(!sharedStore);
    sharedStore = &store;
}

LibraryStore::LibraryStore(UserDefaults& defaults, const Folders& folders, const TimeSource& time,
    const Facts& facts, QObject* parent)
    : QObject(parent)
    , m_defaults(defaults)
    , m_time(time)
    , m_file(folders)
    , m_scripts(m_file.load())
{
    if (const auto storedID = DefaultsValue::asString(m_defaults.value(activeScriptIDKey)))
        assignActiveScriptID(UuidText::parse(*storedID));
    if (m_scripts.isEmpty())
        makeFirstScript(facts);
    if (!m_activeScriptID)
        assignActiveScriptID(firstScriptID());
}

LibraryStore::~LibraryStore()
{
    if (sharedStore == this)
        sharedStore = nullptr;
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
    m_file.save(m_scripts);
}

void LibraryStore::setActiveScriptID(std::optional<QUuid> id)
{
    if (assignActiveScriptID(id))
        Q_EMIT activeScriptIDChanged();
}

bool LibraryStore::assignActiveScriptID(std::optional<QUuid> id)
{
    const bool isAnother = std::exchange(m_activeScriptID, id) != id;
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
    m_scripts.prepend(script);
    const bool isNewlyActive = assignActiveScriptID(script.id);
    m_file.save(m_scripts);

    Q_EMIT scriptsChanged();
    if (isNewlyActive)
        Q_EMIT activeScriptIDChanged();
    return script.id;
}

void LibraryStore::remove(QUuid id)
{
    const bool isRemoved
        = m_scripts.removeIf([id](const Script& script) { return script.id == id; }) > 0;
    const bool isAnotherActive = m_activeScriptID == id && assignActiveScriptID(firstScriptID());
    m_file.save(m_scripts);

    if (isRemoved)
        Q_EMIT scriptsChanged();
    if (isAnotherActive)
        Q_EMIT activeScriptIDChanged();
}

void LibraryStore::updateActive(
    const std::optional<QString>& title, const std::optional<QString>& body)
{
    const std::optional<QUuid> target = m_activeScriptID ? m_activeScriptID : firstScriptID();
    const auto script = std::ranges::find(
        m_scripts, target, [](const Script& candidate) { return std::optional(candidate.id); });
    if (script == m_scripts.end())
        return;

    if (title)
        script->title = *title;
    if (body)
        script->body = *body;
    script->updatedAt = m_time.date();
    m_file.save(m_scripts);

    Q_EMIT scriptsChanged();
}

Result<QUuid, PptxImporter::ImportError> LibraryStore::importPptx(
    const QString& path, const std::optional<QString>& source)
{
    const auto slides = PptxImporter::importNotes(path);
    if (!slides)
        return Failure { slides.error() };

    const QString fileName = QFileInfo(path).fileName();
    AppLog::write("Orvello IMPORT_PPTX ok slides=%d file=%@", slides->size(), fileName);

    return addDeck(withoutExtension(fileName), *slides, source.value_or(fileName));
}

QUuid LibraryStore::addDeck(
    const QString& title, const QList<SlideNote>& slides, const QString& source)
{
    Script script = Script::create(title, joinedBody(slides), m_time.date());
    script.slides = slides;
    script.deckSource = source;
    return addOnTop(script);
}

QString LibraryStore::joinedBody(const QList<SlideNote>& slides)
{
    return Orvello::joinedBody(slides);
}

} // namespace Orvello
