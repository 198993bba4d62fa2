#pragma once

#include <QByteArray>
#include <QList>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace Orvello {

/// Which far end each echo reference hears. A far end keeps its place for as long as it is there:
/// whoever takes another one's place has to learn another way through the room.
class FarEndPlaces {
public:
    static constexpr std::size_t count = 3;

    /// What may be heard now, the most important first; that one has a place in any case.
    void assign(const QList<QByteArray>& farEnds)
    {
        for (QByteArray& place : m_places)
            if (!farEnds.contains(place))
                place.clear();
        for (const QByteArray& farEnd : farEnds)
            if (const auto place = placeFor(farEnd); place != m_places.end())
                *place = farEnd;
        if (!farEnds.isEmpty() && !holds(farEnds.first()))
            m_places.back() = farEnds.first();
    }

    std::optional<QByteArray> at(std::size_t place) const
    {
        return m_places[place].isEmpty() ? std::nullopt : std::optional(m_places[place]);
    }

private:
    using Places = std::array<QByteArray, count>;

    bool holds(const QByteArray& farEnd) const
    {
        return std::find(m_places.begin(), m_places.end(), farEnd) != m_places.end();
    }

    /// None for one that has a place, and when all are taken.
    Places::iterator placeFor(const QByteArray& farEnd)
    {
        return holds(farEnd) ? m_places.end()
                             : std::find(m_places.begin(), m_places.end(), QByteArray());
    }

    Places m_places; ///< Empty ones are free.
};

} // namespace Orvello
