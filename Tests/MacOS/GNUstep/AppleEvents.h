// Apple events, for which GNUstep's Foundation has empty classes, beside the recording AppKit.
// Included before each source.
#pragma once

#include "Tests/MacOS/GNUstep/StandInAppKit.h"

#include <CoreFoundation/CoreFoundation.h>

typedef OSType AEEventClass;
typedef OSType AEEventID;
typedef OSType AEKeyword;

@interface NSAppleEventDescriptor (Recorded)
@property (readonly) OSType typeCodeValue;
- (NSAppleEventDescriptor*)attributeDescriptorForKeyword:(AEKeyword)keyword;
@end

@interface NSAppleEventManager (Recorded)
@property (readonly, retain) NSAppleEventDescriptor* currentAppleEvent;
+ (NSAppleEventManager*)sharedAppleEventManager;
- (void)setEventHandler:(id)handler
            andSelector:(SEL)handleEventSelector
          forEventClass:(AEEventClass)eventClass
             andEventID:(AEEventID)eventID;
- (void)removeEventHandlerForEventClass:(AEEventClass)eventClass andEventID:(AEEventID)eventID;
@end
