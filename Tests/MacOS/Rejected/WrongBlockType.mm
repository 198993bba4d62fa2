// rejects: cannot initialize a parameter of type 'void (^
#import <AVFoundation/AVFoundation.h>

void ask()
{
    [AVCaptureDevice requestAccessForMediaType:AVMediaTypeAudio
                             completionHandler:^(NSString*) {}];
}
