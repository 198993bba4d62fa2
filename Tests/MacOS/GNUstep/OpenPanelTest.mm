// The panel of files over a recording AppKit: what is asked of it, and in which order.

#include "Orvello/Adapters/macOS/Desktop/CocoaOpenPanel.h"
#include "Tests/MacOS/GNUstep/GNUstepTest.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#import <UniformTypeIdentifiers/UniformTypeIdentifiers.h>

#pragma clang diagnostic ignored "-Wincomplete-implementation"
#pragma clang diagnostic ignored "-Wobjc-property-implementation"

namespace {

std::vector<std::string>& calls()
{
    static std::vector<std::string> made;
    return made;
}

void record(const std::string& call) { calls().push_back(call); }

std::string text(NSString* string) { return [string UTF8String]; }

bool knowsType = true;
NSURL* chosen = nil;
NSModalResponse response = NSModalResponseOK;

} // namespace

extern "C" {
__kindof NSApplication* NSApp = nil;
}

@implementation NSResponder
@end
@implementation NSWindow
- (void)setLevel:(NSWindowLevel)level
{
    record("level " + std::to_string(level));
}
@end
@implementation NSPanel
@end
@implementation NSSavePanel
+ (NSSavePanel*)savePanel
{
    return [[[NSSavePanel alloc] init] autorelease];
}
- (void)setNameFieldStringValue:(NSString*)name
{
    record("name " + text(name));
}
- (void)setMessage:(NSString*)message
{
    record("message " + text(message));
}
- (void)setAllowedContentTypes:(NSArray*)types
{
    record("types " + std::to_string([types count]));
}
- (NSURL*)URL
{
    return chosen;
}
- (NSModalResponse)runModal
{
    record("runs");
    return response;
}
@end
@implementation NSOpenPanel
+ (NSOpenPanel*)openPanel
{
    return [[[NSOpenPanel alloc] init] autorelease];
}
- (void)setAllowsMultipleSelection:(BOOL)yes
{
    record(yes ? "several" : "one");
}
- (void)setCanChooseDirectories:(BOOL)yes
{
    record(yes ? "folders" : "no folders");
}
- (void)setCanChooseFiles:(BOOL)yes
{
    record(yes ? "files" : "no files");
}
@end
@implementation NSApplication
- (void)activateIgnoringOtherApps:(BOOL)yes
{
    record("activated");
}
@end
@implementation UTType
+ (instancetype)typeWithIdentifier:(NSString*)identifier
{
    record("type " + text(identifier));
    return knowsType ? [[[UTType alloc] init] autorelease] : nil;
}
+ (instancetype)typeWithFilenameExtension:(NSString*)extension
{
    record("type of " + text(extension));
    return [[[UTType alloc] init] autorelease];
}
@end

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::Contains;
using ::testing::ElementsAre;

class OpenPanelTest : public GNUstepTest {
protected:
    OpenPanelTest()
    {
        calls().clear();
        knowsType = true;
        response = NSModalResponseOK;
        NSApp = [[[NSApplication alloc] init] autorelease];
        chosen = [NSURL fileURLWithPath:@"/decks/talk.pptx"];
    }

    static std::optional<QString> choose()
    {
        return CocoaOpenPanel().chooseFile(u"Choose a deck"_s,
            { { .typeIdentifier = u"org.deck"_s, .extension = u"pptx"_s },
                { .typeIdentifier = u"org.slides"_s, .extension = u"odp"_s } });
    }

    static std::optional<OpenPanel::NewFile> chooseNew()
    {
        return CocoaOpenPanel().chooseNewFile(u"Where to?"_s, u"Talk"_s,
            { { .typeIdentifier = u"public.plain-text"_s, .extension = u"txt"_s },
                { .typeIdentifier = u"net.daringfireball.markdown"_s, .extension = u"md"_s } });
    }
};

TEST_F(OpenPanelTest, opensThePanelOfFilesAboveThePrompterAndInFront)
{
    EXPECT_EQ(choose(), u"/decks/talk.pptx"_s);

    EXPECT_THAT(calls(),
        ElementsAre("one", "no folders", "files", "message Choose a deck", "type org.deck",
            "type org.slides", "types 2", "level 1001", "activated", "runs"));
}

TEST_F(OpenPanelTest, findsATypeThatTheSystemDoesNotKnowByItsExtension)
{
    knowsType = false;
    choose();
    EXPECT_THAT(calls(), Contains("type of pptx"));
    EXPECT_THAT(calls(), Contains("type of odp"));
    EXPECT_THAT(calls(), Contains("types 2")) << "none would allow every file";
}

TEST_F(OpenPanelTest, choosesNothingWhenTheUserCancels)
{
    response = 0;
    EXPECT_EQ(choose(), std::nullopt);
    EXPECT_FALSE(chooseNew());
}

TEST_F(OpenPanelTest, asksForANewFileAboveThePrompterAndInFront)
{
    chosen = [NSURL fileURLWithPath:@"/texts/Talk.txt"];
    const auto file = chooseNew();

    ASSERT_TRUE(file);
    EXPECT_EQ(file->path, u"/texts/Talk.txt"_s);
    EXPECT_EQ(file->kind, 0);
    EXPECT_THAT(calls(),
        ElementsAre("name Talk.txt", "message Where to?", "type public.plain-text",
            "type net.daringfireball.markdown", "types 2", "level 1001", "activated", "runs"));
}

TEST_F(OpenPanelTest, takesTheKindOfANewFileFromItsExtension)
{
    chosen = [NSURL fileURLWithPath:@"/texts/Talk.MD"];
    EXPECT_EQ(chooseNew()->kind, 1);
    chosen = [NSURL fileURLWithPath:@"/texts/Talk"];
    EXPECT_EQ(chooseNew()->kind, 0);
}

} // namespace
} // namespace Orvello
