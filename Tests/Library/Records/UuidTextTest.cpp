#include "Orvello/Library/Records/UuidText.h"

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

const QUuid uuid(u"{e621e1f8-c36c-495a-93fc-0c247a3e6e5f}"_s);

TEST(UuidTextTest, isWrittenInUpperCase)
{
    EXPECT_EQ(UuidText::format(uuid), u"E621E1F8-C36C-495A-93FC-0C247A3E6E5F"_s);
}

TEST(UuidTextTest, isReadInEitherCase)
{
    EXPECT_EQ(UuidText::parse(u"E621E1F8-C36C-495A-93FC-0C247A3E6E5F"_s), uuid);
    EXPECT_EQ(UuidText::parse(u"e621e1f8-c36c-495a-93fc-0c247a3e6e5f"_s), uuid);
    EXPECT_EQ(UuidText::parse(u"e621E1f8-C36c-495A-93fc-0c247A3e6E5f"_s), uuid);
}

TEST(UuidTextTest, mayBeAllZerosOrOnes)
{
    EXPECT_EQ(UuidText::parse(u"00000000-0000-0000-0000-000000000000"_s), QUuid());
    EXPECT_EQ(UuidText::format(*UuidText::parse(u"FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF"_s)),
        u"FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF"_s);
}

TEST(UuidTextTest, isReadInNoOtherForm)
{
    for (const QString& text : { u""_s, u"E621E1F8"_s, u"{E621E1F8-C36C-495A-93FC-0C247A3E6E5F}"_s,
             u"E621E1F8C36C495A93FC0C247A3E6E5F"_s, u" E621E1F8-C36C-495A-93FC-0C247A3E6E5F"_s,
             u"E621E1F8-C36C-495A-93FC-0C247A3E6E5F "_s, u"E621E1F8-C36C-495A-93FC-0C247A3E6E5"_s,
             u"E621E1F8-C36C-495A-93FC-0C247A3E6E5FA"_s, u"G621E1F8-C36C-495A-93FC-0C247A3E6E5F"_s,
             u"E621E1F8-C36C-495A-93FC_0C247A3E6E5F"_s, u"E621E1F8C-36C-495A-93FC-0C247A3E6E5F"_s,
             u"+621E1F8-C36C-495A-93FC-0C247A3E6E5F"_s, u"Ａ621E1F8-C36C-495A-93FC-0C247A3E6E5F"_s,
             u"(E621E1F8C36C495A93FC-0C247A3E6E5F)"_s })
        EXPECT_EQ(UuidText::parse(text), std::nullopt) << text.toUtf8().constData();
}

} // namespace
} // namespace Orvello
