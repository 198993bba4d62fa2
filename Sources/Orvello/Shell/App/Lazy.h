#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace Orvello {

/// A member that is made at the first use, once, and kept.
template <typename T>
class Lazy {
public:
    explicit Lazy(std::function<std::unique_ptr<T>()> make)
        : m_make(std::move(make))
    {
    }

    T& operator()()
    {
        if (!m_value)
            m_value = m_make();
        return *m_value;
    }

private:
    std::function<std::unique_ptr<T>()> m_make;
    std::unique_ptr<T> m_value;
};

} // namespace Orvello
