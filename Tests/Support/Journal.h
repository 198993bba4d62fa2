#pragma once

#include <string>
#include <vector>

namespace Orvello::Testing {

/// What was asked of several fakes, in order. A fake without one keeps no record there.
using Journal = std::vector<std::string>;

inline void note(Journal* journal, std::string line)
{
    if (journal)
        journal->push_back(std::move(line));
}

} // namespace Orvello::Testing
