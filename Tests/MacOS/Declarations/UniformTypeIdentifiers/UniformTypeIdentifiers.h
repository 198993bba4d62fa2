#pragma once

#include <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@interface UTType : NSObject <NSCopying>
+ (nullable instancetype)typeWithIdentifier:(NSString*)identifier;
+ (nullable instancetype)typeWithFilenameExtension:(NSString*)filenameExtension;
@end

NS_ASSUME_NONNULL_END
