#include "Orvello/Presentations/Decks/XmlParser.h"

#include <expat.h>

#include <limits>
#include <memory>

namespace Orvello::PptxImporter {

std::optional<std::string_view> XmlAttributes::value(std::string_view name) const
{
    for (const char* const* entry = m_namesAndValues; entry[0]; entry += 2) {
        if (entry[0] == name)
            return entry[1];
    }
    return std::nullopt;
}

/// expat's callbacks. After XML_StopParser() expat may still deliver a few pending events, which
/// m_stopped keeps from the subclass.
struct XmlParser::Events {
    static void XMLCALL start(void* context, const XML_Char* name, const XML_Char** attributes)
    {
        XmlParser& self = *static_cast<XmlParser*>(context);
        if (++self.m_depth > maximumDepth)
            self.stop();
        if (!self.m_stopped)
            self.startElement(name, XmlAttributes(attributes));
    }

    static void XMLCALL end(void* context, const XML_Char* name)
    {
        XmlParser& self = *static_cast<XmlParser*>(context);
        --self.m_depth;
        if (!self.m_stopped)
            self.endElement(name);
    }

    static void XMLCALL text(void* context, const XML_Char* characters, int length)
    {
        XmlParser& self = *static_cast<XmlParser*>(context);
        if (!self.m_stopped)
            self.characters({ characters, static_cast<std::size_t>(length) });
    }

    static void countDeclaration(void* context)
    {
        XmlParser& self = *static_cast<XmlParser*>(context);
        if (++self.m_declarations > maximumDeclarations)
            self.stop();
    }

    static void XMLCALL entityDeclared(void* context, const XML_Char*, int, const XML_Char*, int,
        const XML_Char*, const XML_Char*, const XML_Char*, const XML_Char*)
    {
        countDeclaration(context);
    }

    static void XMLCALL attributeDeclared(
        void* context, const XML_Char*, const XML_Char*, const XML_Char*, const XML_Char*, int)
    {
        countDeclaration(context);
    }
};

void XmlParser::parse(std::string_view document)
{
    if (document.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        return;
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> expat(
        XML_ParserCreate(nullptr), &XML_ParserFree);
    if (!expat)
        return;
    m_expat = expat.get();
    XML_SetUserData(expat.get(), this);
    XML_SetElementHandler(expat.get(), &Events::start, &Events::end);
    XML_SetCharacterDataHandler(expat.get(), &Events::text);

    // Through nested entities and default attributes, a handful of declarations can make a small
    // document cost hours of work or a stack as deep as it is long.
    XML_SetEntityDeclHandler(expat.get(), &Events::entityDeclared);
    XML_SetAttlistDeclHandler(expat.get(), &Events::attributeDeclared);
    XML_SetBillionLaughsAttackProtectionMaximumAmplification(expat.get(), 2.0F);
    XML_SetBillionLaughsAttackProtectionActivationThreshold(expat.get(), 0);

    // In one piece, because expat looks at a token again from its start with each further piece.
    XML_Parse(expat.get(), document.data(), static_cast<int>(document.size()), XML_TRUE);
    m_expat = nullptr;
}

void XmlParser::stop()
{
    m_stopped = true;
    XML_StopParser(static_cast<XML_Parser>(m_expat), XML_FALSE);
}

} // namespace Orvello::PptxImporter
