#include "Orvello/Library/Import/DeckFileUpdates.h"

#include "Orvello/Foundation/Assign.h"
#include "Orvello/Library/Store/LibraryStore.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace Orvello {

using PptxImporter::FileStamp;
using PptxImporter::ImportError;

namespace {

constexpr double secondsBetweenLooks = 2.0;

} // namespace

DeckFileUpdates::DeckFileUpdates(
    LibraryStore& library, DeckFileImport& files, TimeSource& time, QObject* parent)
    : QObject(parent)
    , m_library(library)
    , m_files(files)
    , m_timer(time.callEvery(secondsBetweenLooks, [this] { look(); }))
{
    connect(
        &library, &LibraryStore::activeScriptIDChanged, this, &DeckFileUpdates::followActiveScript);
    connect(&library, &LibraryStore::scriptsChanged, this, [this](const LibraryChange& change) {
        if (change.kind != LibraryChange::Kind::Edited)
            followActiveScript();
    });
    followActiveScript();
}

DeckFileUpdates::~DeckFileUpdates() = default;

const Script* DeckFileUpdates::activeDeck() const
{
    const Script* const script = m_library.activeScript();
    return script && script->slides ? script : nullptr;
}

QString DeckFileUpdates::path() const
{
    const Script* const deck = activeDeck();
    const DeckFile* const file = deck ? m_library.deckFile(deck->id) : nullptr;
    return file ? file->path : QString();
}

void DeckFileUpdates::followActiveScript()
{
    const Script* const deck = activeDeck();
    const auto id = deck ? std::optional(deck->id) : std::nullopt;
    if (!assign(m_script, id) && m_state != State::NoFile)
        return;
    m_looks = 0;
    m_readStamp = {};
    setState(!deck ? State::NoDeck : path().isEmpty() ? State::NoFile : State::Watched);
}

void DeckFileUpdates::look()
{
    if (m_state == State::NoFile)
        followActiveScript(); // It may have one by now.
    if (!m_script || path().isEmpty() || m_isLooking)
        return;
    m_isLooking = true;
    m_files.look(
        path(), [self = QPointer(this), script = *m_script, path = path()](const FileStamp& stamp) {
            if (!self)
                return;
            self->m_isLooking = false;
            if (self->m_script == script && self->path() == path)
                self->take(script, path, stamp);
        });
}

void DeckFileUpdates::take(QUuid script, const QString& path, const FileStamp& stamp)
{
    // A program that saves may take the file away for a moment, and writes it piece by piece.
    const bool isFirstLook = m_looks++ == 0;
    if (std::exchange(m_lastStamp, stamp) != stamp || isFirstLook)
        return;
    if (stamp.size < 0) {
        setState(State::Missing);
    } else if (stamp == m_library.deckFile(script)->stamp) {
        if (m_state != State::Current)
            setState(State::Watched);
    } else if (assign(m_readStamp, stamp)) {
        read(script, path);
    }
}

/// Takes over what is in the file, if nothing gets lost.
void DeckFileUpdates::read(QUuid script, const QString& path)
{
    m_files.read(path, [self = QPointer(this), script, path](const DeckFileImport::ReadDeck& deck) {
        if (!self || self->m_script != script || self->path() != path)
            return;
        if (!deck) {
            self->m_problem = deck.error();
            self->setState(State::Unreadable);
            return;
        }
        self->m_lostSlides = LibraryStore::lostNotes(*self->activeDeck(), deck->slides);
        if (!self->m_lostSlides.isEmpty()) {
            self->setState(State::LosesNotes);
            return;
        }
        self->m_library.updateDeck(script, path, *deck);
        self->setState(State::Watched);
    });
}

void DeckFileUpdates::update()
{
    if (m_script && !path().isEmpty())
        update(*m_script, path(), [](ImportError) {});
}

void DeckFileUpdates::update(
    QUuid script, const QString& path, std::function<void(ImportError)> failed)
{
    m_library.setActiveScriptID(script);
    m_files.read(path,
        [self = QPointer(this), script, path, failed = std::move(failed)](
            const DeckFileImport::ReadDeck& deck) {
            if (!self)
                return;
            if (deck) {
                self->m_library.updateDeck(script, path, *deck);
                if (self->m_script == script)
                    self->setState(State::Current);
                return;
            }
            if (self->m_script == script && self->path() == path) {
                self->m_problem = deck.error();
                self->setState(self->m_lastStamp.size < 0 && self->m_looks > 0 ? State::Missing
                                                                               : State::Unreadable);
            }
            failed(deck.error());
        });
}

void DeckFileUpdates::setState(State state)
{
    // The same state may be news: other slides lose their notes, or somebody has asked again.
    const bool isAlwaysNews = state > State::Watched && state != State::Missing;
    if (assign(m_state, state) || isAlwaysNews)
        Q_EMIT stateChanged();
}

} // namespace Orvello
