#include "Orvello/Shell/Updates/Appcast.h"

#include <QCoreApplication>
#include <QVersionNumber>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

namespace Orvello::Appcast {

using namespace Qt::StringLiterals;

namespace {

constexpr auto sparkle = "http://www.andymatuschak.org/xml-namespaces/sparkle"_L1;

class Reader {
public:
    Reader(const QByteArray& xml, const QString& operatingSystem)
        : m_xml(xml)
        , m_operatingSystem(operatingSystem)
    {
    }

    Result<QList<AppcastItem>, QString> read()
    {
        bool isFeed = false;
        while (!m_xml.atEnd()) {
            const QXmlStreamReader::TokenType token = m_xml.readNext();
            if (token == QXmlStreamReader::DTD)
                m_xml.raiseError(QCoreApplication::translate(
                    "Orvello::Appcast", "It declares a document type."));
            else if (token == QXmlStreamReader::StartElement)
                isFeed = isPlain("rss"_L1) && readChannels();
        }
        if (!m_xml.hasError() && !isFeed)
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

    /// Whether there is a channel, which may be empty.
    bool readChannels()
    {
        bool hasChannel = false;
        while (m_xml.readNextStartElement()) {
            if (!isPlain("channel"_L1)) {
                m_xml.skipCurrentElement();
                continue;
            }
            hasChannel = true;
            while (m_xml.readNextStartElement()) {
                if (isPlain("item"_L1))
                    readItem();
                else
                    m_xml.skipCurrentElement();
            }
        }
        return hasChannel;
    }

    void readItem()
    {
        AppcastItem item;
        QString link;
        QString download;
        bool isForOthers = false;
        while (m_xml.readNextStartElement()) {
            if (isSparkle("version"_L1)) {
                item.version = text();
            } else if (isSparkle("shortVersionString"_L1)) {
                item.displayVersion = text();
            } else if (isSparkle("channel"_L1)) {
                item.channel = text();
            } else if (isPlain("link"_L1)) {
                link = text();
            } else {
                if (isPlain("enclosure"_L1) && download.isEmpty())
                    isForOthers = !readEnclosure(item, download);
                m_xml.skipCurrentElement();
            }
        }
        if (isForOthers || item.version.isEmpty())
            return;
        if (item.displayVersion.isEmpty())
            item.displayVersion = item.version;
        item.version.truncate(AppcastItem::maximumText);
        item.displayVersion.truncate(AppcastItem::maximumText);
        item.page = QUrl(link.isEmpty() ? download : link, QUrl::StrictMode);
        m_items.append(std::move(item));
    }

    /// Whether the download is for our system. Some feeds keep the release's versions in it.
    bool readEnclosure(AppcastItem& item, QString& download) const
    {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        const auto value = [&](QLatin1StringView name) {
            return attributes.value(sparkle, name).trimmed().toString();
        };
        const QString system = value("os"_L1);
        if (!system.isEmpty() && system != m_operatingSystem)
            return false;
        download = attributes.value("url"_L1).trimmed().toString();
        if (item.version.isEmpty())
            item.version = value("version"_L1);
        if (item.displayVersion.isEmpty())
            item.displayVersion = value("shortVersionString"_L1);
        return true;
    }

    /// Without child elements, whose depth may be anything.
    QString text() { return m_xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed(); }

    QXmlStreamReader m_xml;
    const QString& m_operatingSystem;
    QList<AppcastItem> m_items;
};

/// The runs of digits and of letters in what follows a version's numbers.
QStringList partsOf(QStringView suffix)
{
    QStringList parts;
    QChar before;
    for (const QChar character : suffix) {
        if (character == u'+')
            break;
        if (character.isLetterOrNumber()) {
            const bool goesOn
                = before.isLetterOrNumber() && before.isDigit() == character.isDigit();
            if (!goesOn)
                parts.append(QString());
            parts.last() += character.toLower();
        }
        before = character;
    }
    return parts;
}

/// Negative if the one comes before the other. A number comes before a word.
int compareParts(const QString& part, const QString& other)
{
    const bool isNumber = part.front().isDigit();
    if (isNumber != other.front().isDigit())
        return isNumber ? -1 : 1;
    if (isNumber && part.size() != other.size())
        return part.size() < other.size() ? -1 : 1;
    return part.compare(other);
}

int compareSuffixes(QStringView suffix, QStringView other)
{
    const QStringList parts = partsOf(suffix);
    const QStringList others = partsOf(other);
    if (parts.isEmpty() || others.isEmpty())
        return static_cast<int>(parts.isEmpty()) - static_cast<int>(others.isEmpty());
    for (qsizetype i = 0; i < std::min(parts.size(), others.size()); ++i) {
        if (const int order = compareParts(parts[i], others[i]); order != 0)
            return order;
    }
    return static_cast<int>(parts.size() > others.size())
        - static_cast<int>(parts.size() < others.size());
}

} // namespace

Result<QList<AppcastItem>, QString> parse(const QByteArray& xml, const QString& operatingSystem)
{
    return Reader(xml, operatingSystem).read();
}

bool isOlder(const QString& version, const QString& other)
{
    qsizetype end = 0;
    qsizetype otherEnd = 0;
    const QVersionNumber numbers = QVersionNumber::fromString(version, &end).normalized();
    const QVersionNumber others = QVersionNumber::fromString(other, &otherEnd).normalized();
    if (numbers != others)
        return numbers < others;
    return compareSuffixes(QStringView(version).sliced(end), QStringView(other).sliced(otherEnd))
        < 0;
}

const AppcastItem* newest(const QList<AppcastItem>& items, const QString& version)
{
    const AppcastItem* newest = nullptr;
    QString highest = version;
    for (const AppcastItem& item : items) {
        if (item.channel.isEmpty() && isOlder(highest, item.version)) {
            newest = &item;
            highest = item.version;
        }
    }
    return newest;
}

} // namespace Orvello::Appcast
