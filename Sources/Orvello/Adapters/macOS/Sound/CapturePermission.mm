#include "Orvello/Adapters/macOS/Sound/CapturePermission.h"

#import <AVFoundation/AVFoundation.h>

namespace Orvello {

MicrophonePermission::Status CapturePermission::status() const
{
    switch ([AVCaptureDevice authorizationStatusForMediaType:AVMediaTypeAudio]) {
    case AVAuthorizationStatusNotDetermined:
        return Status::NotDetermined;
    case AVAuthorizationStatusRestricted:
        return Status::Restricted;
    case AVAuthorizationStatusDenied:
        return Status::Denied;
    case AVAuthorizationStatusAuthorized:
        return Status::Authorized;
    }
    return Status::Denied; // A status that a later system added.
}

void CapturePermission::request(std::function<void(bool isGranted)> completion)
{
    [AVCaptureDevice requestAccessForMediaType:AVMediaTypeAudio
                             completionHandler:^(BOOL granted) { completion(granted); }];
}

} // namespace Orvello
