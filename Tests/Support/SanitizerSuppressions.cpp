// What the sanitizers report of libraries that are not ours. Nothing of Orvello's own belongs here.
// Compiled into every test program of a sanitizer build, so that the programs can also be run by
// hand.

// The names are the sanitizers' own: see sanitizer/lsan_interface.h.
extern "C" const char* __lsan_default_suppressions();

const char* __lsan_default_suppressions()
{
    return
        // Qt Quick 6.4 does not free the textures of its software renderer with the last window.
        "leak:QSGTexture::QSGTexture\n"
        // The Objective-C runtime keeps what it knows of classes until the process ends.
        "leak:libobjc.so\n"
        // So does GNUstep with its own constants and caches.
        "leak:libgnustep-base.so\n";
}
