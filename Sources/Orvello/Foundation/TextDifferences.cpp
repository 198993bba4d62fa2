#include "Orvello/Foundation/TextDifferences.h"

#include <QHash>
#include <QStringView>

#include <algorithm>
#include <utility>

namespace Orvello {

namespace {

struct Line {
    qsizetype begin = 0;
    qsizetype end = 0; ///< After its line feed.
};

std::vector<Line> linesOf(const QString& text)
{
    std::vector<Line> lines;
    for (qsizetype begin = 0; begin < text.size();) {
        const qsizetype feed = text.indexOf(u'\n', begin);
        const qsizetype end = feed < 0 ? text.size() : feed + 1;
        lines.push_back({ begin, end });
        begin = end;
    }
    return lines;
}

/// The lines that the text has once, by their content; -1 for those that it has more often.
QHash<QStringView, qsizetype> uniqueLines(const QString& text, const std::vector<Line>& lines)
{
    QHash<QStringView, qsizetype> unique;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const QStringView line
            = QStringView(text).sliced(lines[i].begin, lines[i].end - lines[i].begin);
        const auto known = unique.find(line);
        if (known == unique.end())
            unique.insert(line, static_cast<qsizetype>(i));
        else
            *known = -1;
    }
    return unique;
}

/// The longest sequence of pairs in which the second numbers rise as the first ones do.
std::vector<std::pair<qsizetype, qsizetype>> longestRise(
    const std::vector<std::pair<qsizetype, qsizetype>>& pairs)
{
    std::vector<std::size_t> tails; // Where the best sequence of each length ends.
    std::vector<std::size_t> before(pairs.size());
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        const auto place = std::ranges::lower_bound(
            tails, pairs[i].second, {}, [&](std::size_t tail) { return pairs[tail].second; });
        before[i] = place == tails.begin() ? i : *(place - 1);
        if (place == tails.end())
            tails.push_back(i);
        else
            *place = i;
    }
    std::vector<std::pair<qsizetype, qsizetype>> rise(tails.size());
    for (std::size_t length = tails.size(), i = tails.empty() ? 0 : tails.back(); length > 0;
         i = before[i])
        rise[--length] = pairs[i];
    return rise;
}

/// Adds the part between two places that are the same in both texts, without what its ends share.
void addPart(TextDifferences& differences, QStringView before, QStringView after, qsizetype begin)
{
    const auto differing
        = std::mismatch(before.begin(), before.end(), after.begin(), after.end()).first;
    const qsizetype head = differing - before.begin();
    before = before.sliced(head);
    after = after.sliced(head);
    const auto common = std::mismatch(before.rbegin(), before.rend(), after.rbegin(), after.rend());
    const qsizetype tail = common.first - before.rbegin();
    if (before.size() > tail || after.size() > tail)
        differences.push_back({ begin + head, before.size() - tail, after.size() - tail });
}

} // namespace

TextDifferences differencesBetween(const QString& before, const QString& after)
{
    const std::vector<Line> linesBefore = linesOf(before);
    const std::vector<Line> linesAfter = linesOf(after);
    const auto uniqueBefore = uniqueLines(before, linesBefore);
    const auto uniqueAfter = uniqueLines(after, linesAfter);
    std::vector<std::pair<qsizetype, qsizetype>> shared;
    for (auto line = uniqueBefore.cbegin(); line != uniqueBefore.cend(); ++line) {
        const qsizetype other = uniqueAfter.value(line.key(), -1);
        if (line.value() >= 0 && other >= 0)
            shared.emplace_back(line.value(), other);
    }
    std::ranges::sort(shared);

    TextDifferences differences;
    qsizetype beginBefore = 0;
    qsizetype beginAfter = 0;
    const auto addUpTo = [&](qsizetype endBefore, qsizetype endAfter) {
        addPart(differences, QStringView(before).sliced(beginBefore, endBefore - beginBefore),
            QStringView(after).sliced(beginAfter, endAfter - beginAfter), beginBefore);
    };
    for (const auto& [lineBefore, lineAfter] : longestRise(shared)) {
        const Line& here = linesBefore[static_cast<std::size_t>(lineBefore)];
        const Line& there = linesAfter[static_cast<std::size_t>(lineAfter)];
        addUpTo(here.begin, there.begin);
        beginBefore = here.end;
        beginAfter = there.end;
    }
    addUpTo(before.size(), after.size());
    return differences;
}

double placeAfter(const TextDifferences& differences, double character)
{
    double moved = 0;
    for (const TextEdit& edit : differences) {
        const auto position = static_cast<double>(edit.position);
        const auto inserted = static_cast<double>(edit.inserted);
        if (character < position)
            break;
        if (character < position + static_cast<double>(edit.removed))
            return position + moved + std::min(character - position, inserted);
        moved += inserted - static_cast<double>(edit.removed);
    }
    return character + moved;
}

} // namespace Orvello
