#include "Orvello/Diagnostics/ExceptionReport.h"

#include <array>
#include <cstdlib>
#include <cxxabi.h>
#include <exception>
#include <execinfo.h>
#include <memory>
#include <typeinfo>

namespace Orvello {

namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

/// Nothing for a name that is not C++'s: the Objective-C runtime throws its exceptions under the
/// plain names of their classes, and reports them itself.
std::optional<std::string> nameInSource(const std::type_info& type)
{
    int status = 0;
    const std::unique_ptr<char, Free> name(
        abi::__cxa_demangle(type.name(), nullptr, nullptr, &status));
    if (!name)
        return std::nullopt;
    return name.get();
}

std::string reasonOfCurrentException()
{
    try {
        throw;
    } catch (const std::exception& exception) {
        return exception.what();
    } catch (...) {
        return {};
    }
}

std::string callStackSymbols()
{
    std::array<void*, 128> frames;
    const int count = ::backtrace(frames.data(), static_cast<int>(frames.size()));
    const std::unique_ptr<char*, Free> symbols(::backtrace_symbols(frames.data(), count));
    std::string stack;
    for (int i = 0; symbols && i < count; ++i) {
        if (i > 0)
            stack += '\n';
        stack += symbols.get()[i];
    }
    return stack;
}

} // namespace

std::optional<ExceptionReport> ExceptionReport::ofCurrentException()
{
    const std::type_info* const type = abi::__cxa_current_exception_type();
    if (!type)
        return std::nullopt;
    const std::optional<std::string> name = nameInSource(*type);
    if (!name)
        return std::nullopt;
    return ExceptionReport { *name, reasonOfCurrentException(), callStackSymbols() };
}

} // namespace Orvello
