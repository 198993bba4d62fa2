#pragma once

#include "Orvello/Adapters/macOS/Early/CocoaText.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvello {

/// Over a database of preferences of its own.
class GNUstepTest : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        static const QTemporaryDir folder;
        NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
        NSMutableDictionary* const configuration = [[GNUstepConfig(nil) mutableCopy] autorelease];
        [configuration setObject:nsString(folder.path()) forKey:@"GNUSTEP_USER_DEFAULTS_DIR"];
        GNUstepConfig(configuration);
        [pool release];
    }
    ~GNUstepTest() override { [m_pool release]; }

private:
    NSAutoreleasePool* m_pool = [[NSAutoreleasePool alloc] init];
};

} // namespace Orvello
