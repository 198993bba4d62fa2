#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace Orvello::PptxImporter {

/// One element's attributes, by their names as the document writes them. Valid during the event.
class XmlAttributes {
public:
    /// `namesAndValues`: name, value, name, value, …, null.
    explicit XmlAttributes(const char* const* namesAndValues)
        : m_namesAndValues(namesAndValues)
    {
    }

    std::optional<std::string_view> value(std::string_view name) const;

private:
    const char* const* m_namesAndValues;
};

/// Receives the events of one document, and is used for no other. Names are qualified names as
/// written: namespaces are not resolved. Text is UTF-8, whatever the document's encoding.
///
/// Nothing outside the document is ever loaded. A document that is not well-formed, nests deeper
/// than `maximumDepth`, declares more than `maximumDeclarations` entities and attributes, or grows
/// to more than twice its size through its entities, ends there: the events up to that point have
/// been delivered, and none follow.
class XmlParser {
public:
    static constexpr int maximumDepth = 256;
    static constexpr int maximumDeclarations = 16;

    XmlParser(const XmlParser&) = delete;
    XmlParser& operator=(const XmlParser&) = delete;
    virtual ~XmlParser() = default;

    void parse(std::string_view document);

protected:
    XmlParser() = default;

    virtual void startElement(std::string_view name, const XmlAttributes& attributes) = 0;
    virtual void endElement(std::string_view) { }
    /// One piece of text; a run of text may come in several.
    virtual void characters(std::string_view) { }

    /// Ends the delivery of events.
    void stop();

private:
    struct Events;

    void* m_expat = nullptr; ///< The XML_Parser, while parse() runs.
    bool m_stopped = false;
    int m_depth = 0;
    int m_declarations = 0;
};

} // namespace Orvello::PptxImporter
