#include "Tests/Gallery/PseudoLanguage.h"

#include <QGuiApplication>

namespace Orvello::Gallery {

using namespace Qt::StringLiterals;

namespace {

class RightToLeft {
public:
    RightToLeft() { QGuiApplication::setLayoutDirection(Qt::RightToLeft); }
    ~RightToLeft() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
    RightToLeft(const RightToLeft&) = delete;
    RightToLeft& operator=(const RightToLeft&) = delete;
};

/// A stage in other surroundings, which are there before it and after it.
template <typename Surroundings>
class StageIn final : public Stage {
public:
    explicit StageIn(const Scene& scene)
        : m_stage(scene.make())
    {
    }

    QQuickWindow& window() override { return m_stage->window(); }
    void play() override { m_stage->play(); }

private:
    Surroundings m_surroundings;
    std::unique_ptr<Stage> m_stage;
};

template <typename Surroundings>
Scene in(const Scene& scene, const QString& addition)
{
    Scene changed = scene;
    changed.name += u", "_s + addition;
    changed.make = [scene] { return std::make_unique<StageIn<Surroundings>>(scene); };
    return changed;
}

} // namespace

PseudoLanguage::PseudoLanguage()
{
    if (!m_words.load(u":/Gallery/orvello_pseudo.qm"_s))
        qFatal("The pseudo-language is missing");
    QCoreApplication::installTranslator(&m_words);
}

PseudoLanguage::~PseudoLanguage() { QCoreApplication::removeTranslator(&m_words); }

Scene inPseudoLanguage(const Scene& scene)
{
    return in<PseudoLanguage>(scene, u"pseudo-language"_s);
}

Scene mirrored(const Scene& scene) { return in<RightToLeft>(scene, u"right to left"_s); }

} // namespace Orvello::Gallery
