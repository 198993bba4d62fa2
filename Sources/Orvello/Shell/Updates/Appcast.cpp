#include "Orvello/Shell/Updates/Appcast.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

#include <algorithm>
#include <optional>
#include <utility>

namespace Orvello::Appcast {

using namespace Qt::StringLiterals;

namespace {

constexpr auto sparkle = "http://www.andymatuschak.org/xml-namespaces/sparkle"_L1;

/// One file of a release.
struct Enclosure {
    QString url;
    QString version;
    QString displayVersion;
    QString operatingSystem;
};

class Reader {
public:
    Reader(const QByteArray& xml, QString operatingSystem)
        : m_xml(xml)
        , m_operatingSystem(std::move(operatingSystem))
    {
    }

    Result<QList<AppcastItem>, QString> read()
    {
        while (!m_xml.atEnd()) {
            const QXmlStreamReader::TokenType token = m_xml.readNext();
            if (token == QXmlStreamReader::DTD)
                m_xml.raiseError(QCoreApplication::translate(
                    "Orvello::Appcast", "It declares a document type."));
            else if (token == QXmlStreamReader::StartElement)
                readRoot();
        }
        if (!m_xml.hasError() && !m_hasChannel)
            m_xml.raiseError(QCoreApplication::translate("Orvello::Appcast", "It is no RSS feed."));
        if (m_xml.hasError())
            return Failure { m_xml.errorString() };
        return std::move(m_items);
    }

private:
    bool isPlain(QLatin1StringView name) const
    {
        return m_xml.namespaceUri().isEmpty() && m_xml.name() == name;
    }
    bool isSparkle(QLatin1StringView name) const
    {
        return m_xml.namespaceUri() == sparkle && m_xml.name() == name;
    }

    void readRoot()
    {
        if (!isPlain("rss"_L1))
            return m_xml.raiseError(
                QCoreApplication::translate("Orvello::Appcast", "It is no RSS feed."));
        while (m_xml.readNextStartElement()) {
            if (isPlain("channel"_L1))
                readChannel();
            else
                m_xml.skipCurrentElement();
        }
    }

    void readChannel()
    {
        m_hasChannel = true;
        while (m_xml.readNextStartElement()) {
            if (isPlain("item"_L1))
                readItem();
            else
                m_xml.skipCurrentElement();
        }
    }

    void readItem()
    {
        AppcastItem item;
        QString link;
        QList<Enclosure> enclosures;
        while (m_xml.readNextStartElement()) {
            if (isSparkle("version"_L1))
                item.version = text();
            else if (isSparkle("shortVersionString"_L1))
                item.displayVersion = text();
            else if (isSparkle("channel"_L1))
                item.channel = text();
            else if (isSparkle("minimumSystemVersion"_L1))
                item.minimumSystemVersion = text();
            else if (isSparkle("maximumSystemVersion"_L1))
                item.maximumSystemVersion = text();
            else if (isPlain("link"_L1))
                link = text();
            else if (isPlain("enclosure"_L1))
                enclosures.append(readEnclosure());
            else
                m_xml.skipCurrentElement();
        }
        if (!m_xml.hasError())
            add(std::move(item), link, enclosures);
    }

    Enclosure readEnclosure()
    {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        const auto own = [&](QLatin1StringView name) {
            return attributes.value(sparkle, name).trimmed().toString();
        };
        Enclosure enclosure { attributes.value("url"_L1).trimmed().toString(), own("version"_L1),
            own("shortVersionString"_L1), own("os"_L1) };
        m_xml.skipCurrentElement();
        return enclosure;
    }

    void add(AppcastItem item, const QString& link, const QList<Enclosure>& enclosures)
    {
        const auto isForUs = [&](const Enclosure& enclosure) {
            return enclosure.operatingSystem.isEmpty()
                || enclosure.operatingSystem == m_operatingSystem;
        };
        const auto enclosure = std::ranges::find_if(enclosures, isForUs);
        if (enclosure != enclosures.end()) {
            if (!enclosure->version.isEmpty())
                item.version = enclosure->version;
            if (!enclosure->displayVersion.isEmpty())
                item.displayVersion = enclosure->displayVersion;
        } else if (!enclosures.isEmpty()) {
            return;
        }
        if (item.version.isEmpty())
            return;
        if (item.displayVersion.isEmpty())
            item.displayVersion = item.version;
        const bool hasDownload = link.isEmpty() && enclosure != enclosures.end();
        item.page = QUrl(hasDownload ? enclosure->url : link, QUrl::StrictMode);
        m_items.append(std::move(item));
    }

    /// Without child elements, whose depth may be anything.
    QString text() { return m_xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed(); }

    QXmlStreamReader m_xml;
    const QString m_operatingSystem;
    QList<AppcastItem> m_items;
    bool m_hasChannel = false;
};

enum class PartKind { Number, Separator, Letters };

PartKind kindOf(QChar character)
{
    if (character >= u'0' && character <= u'9')
        return PartKind::Number;
    return character.isLetter() ? PartKind::Letters : PartKind::Separator;
}

/// The version's runs of digits and of letters, up to the first hyphen.
QList<QStringView> parts(QStringView version)
{
    QList<QStringView> all;
    version = version.left(version.indexOf(u'-')); // All of it without a hyphen.
    for (qsizetype start = 0, end = 0; start < version.size(); start = end) {
        const PartKind kind = kindOf(version[start]);
        while (end < version.size() && kindOf(version[end]) == kind)
            ++end;
        if (kind != PartKind::Separator)
            all.append(version.sliced(start, end - start));
    }
    return all;
}

std::strong_ordering ordering(int comparison) { return comparison <=> 0; }

/// Numbers of any length.
std::strong_ordering compareNumbers(QStringView left, QStringView right)
{
    const auto withoutZeros = [](QStringView digits) {
        while (digits.startsWith(u'0'))
            digits = digits.sliced(1);
        return digits;
    };
    left = withoutZeros(left);
    right = withoutZeros(right);
    return left.size() != right.size() ? left.size() <=> right.size()
                                       : ordering(left.compare(right));
}

std::strong_ordering compareParts(QStringView left, QStringView right)
{
    // A missing part is a zero, and letters come before any number.
    const auto isLetters = [](QStringView part) {
        return !part.isEmpty() && kindOf(part.front()) == PartKind::Letters;
    };
    if (isLetters(left) != isLetters(right))
        return isLetters(left) ? std::strong_ordering::less : std::strong_ordering::greater;
    return isLetters(left) ? ordering(left.compare(right)) : compareNumbers(left, right);
}

} // namespace

Result<QList<AppcastItem>, QString> parse(const QByteArray& xml, const QString& operatingSystem)
{
    return Reader(xml, operatingSystem).read();
}

std::strong_ordering compareVersions(const QString& left, const QString& right)
{
    const QList<QStringView> leftParts = parts(left);
    const QList<QStringView> rightParts = parts(right);
    for (qsizetype i = 0; i < std::max(leftParts.size(), rightParts.size()); ++i) {
        const auto order = compareParts(leftParts.value(i), rightParts.value(i));
        if (order != std::strong_ordering::equal)
            return order;
    }
    return std::strong_ordering::equal;
}

const AppcastItem* newest(const QList<AppcastItem>& items, const Host& host)
{
    const auto isCandidate = [&](const AppcastItem& item) {
        const auto isAllowed = [&](const QString& limit, std::strong_ordering forbidden) {
            return limit.isEmpty() || compareVersions(host.systemVersion, limit) != forbidden;
        };
        return item.channel.isEmpty()
            && isAllowed(item.minimumSystemVersion, std::strong_ordering::less)
            && isAllowed(item.maximumSystemVersion, std::strong_ordering::greater)
            && compareVersions(item.version, host.version) == std::strong_ordering::greater;
    };
    const AppcastItem* best = nullptr;
    for (const AppcastItem& item : items) {
        if (isCandidate(item)
            && (!best
                || compareVersions(item.version, best->version) == std::strong_ordering::greater))
            best = &item;
    }
    return best;
}

} // namespace Orvello::Appcast
