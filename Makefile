# The front door. Everything behind it is CMake (see CMakePresets.json) and the scripts in tools/.
#
#   make run [DECK=talk.pptx]   build and open the prompter, with that deck's notes
#   make test                   build and run every test
#   make faults                 everything that can go wrong with the sound, on both sound servers, in five minutes
#   make slides                 slideshows in LibreOffice on each of its interfaces, with delays and processor time
#   make soak [MINUTES=120]     the microphone for hours;  make speech: how well it tells speech from noise
#   make bench                  print the measured speed and memory
#   make gallery               every window in every state, looked over: build/gallery.html
#   make kill-test N=1000       kill the program that often while it saves, and look for what is lost
#   make sanitize               the unit tests under AddressSanitizer and UBSan, those with threads under ThreadSanitizer
#   make format                 lay the sources out;  make tidy: static analysis
#   make deb                    build/orvello_<version>_<architecture>.deb, for the distribution that it is made on
#   make install [PREFIX=/usr/local] [DESTDIR=]    and make uninstall, with the same two

export ORVELLO_COMPILER_LAUNCHER := $(shell command -v ccache 2>/dev/null)

.PHONY: run test kill-test slides faults soak speech bench gallery sanitize format tidy clean deb install uninstall

# The program alone needs no test package. In a folder that is configured with the tests, they stay: to configure without
# them would throw away what is built of them.
alone := $(if $(wildcard build/CMakeCache.txt),,-DBUILD_TESTING=OFF)
run:
	@tools/setup build
	@tools/build $(alone) orvello
	@tools/run "$(DECK)"

test:
	@tools/setup test
	@tools/build -DBUILD_TESTING=ON all
	@ctest --preset release

sound_test = PYTHONDONTWRITEBYTECODE=1 ORVELLO_VOICE_PROBE=build/Tests/EndToEnd/voice-probe /usr/bin/python3 Tests/EndToEnd
servers := pulseaudio pipewire
MINUTES := 120

faults:
	@tools/setup test
	@tools/build -DBUILD_TESTING=ON voice-probe
	@set -e; for server in $(servers); do \
	    echo "On $$server:"; ORVELLO_FAULTS=all ORVELLO_SOUND_SERVER=$$server $(sound_test)/test_voice_faults.py; \
	done

# The other two interfaces of LibreOffice come in packages of their own, which no other test needs.
slides:
	@tools/setup slides
	@tools/build -DBUILD_TESTING=ON slide-follower
	@set -e; for interface in gen gtk3 kf5 kf6; do \
	    test $$interface = gen -o -e /usr/lib/libreoffice/program/libvclplug_$${interface}lo.so || continue; \
	    echo "LibreOffice with $$interface:"; \
	    PYTHONDONTWRITEBYTECODE=1 ORVELLO_OFFICE_INTERFACE=$$interface ORVELLO_SLIDE_CHANGES=30 ORVELLO_WORST_DELAY=0.8 \
	    ORVELLO_PROGRAM=build/Tests/EndToEnd/slide-follower ORVELLO_IMPRESS_HELPER=build/impress-helper.py \
	    /usr/bin/python3 Tests/EndToEnd/test_slides.py; \
	done

soak:
	@tools/setup test
	@tools/build -DBUILD_TESTING=ON voice-probe
	@set -e; for server in $(servers); do ORVELLO_SOUND_SERVER=$$server $(sound_test)/soak_voice.py $(MINUTES); done

speech:
	@tools/setup test
	@tools/build -DBUILD_TESTING=ON speech-judge
	@ORVELLO_SPEECH_JUDGE=build/Tests/EndToEnd/speech-judge $(sound_test)/report_speech.py

bench:
	@tools/setup test
	@tools/build -DBUILD_TESTING=ON orvello benchmarks
	@tools/bench

gallery:
	@tools/setup test
	@tools/build -DBUILD_TESTING=ON orvello-gallery
	@tools/gallery build/Tests/Gallery/orvello-gallery build/gallery.html

N := 1000
kill-test:
	@tools/setup test
	@tools/build -DBUILD_TESTING=ON KillTest
	@ORVELLO_KILLS=$(N) build/Tests/Library/KillTest

sanitize:
	@tools/setup test
	@set -e; for preset in asan tsan; do \
	    cmake --preset $$preset > /dev/null; \
	    cmake --build --preset $$preset; \
	    ctest --preset $$preset; \
	done

format:
	@command -v clang-format-14 >/dev/null || { echo "make format: clang-format 14 is needed, as on Debian 12; other \
	versions lay out differently" >&2; exit 1; }
	@git ls-files '*.h' '*.cpp' '*.mm' | xargs clang-format-14 -i

tidy:
	@tools/setup test
	@tools/build -DBUILD_TESTING=ON all
	@tools/tidy

clean:
	@rm -rf build

deb:
	@tools/setup install
	@tools/build $(alone) installable
	@tools/make-deb build

PREFIX := /usr/local
install:
	@tools/setup install
	@tools/build $(alone) installable
	@tools/install build "$(PREFIX)" "$(DESTDIR)"

uninstall:
	@tools/install --remove build "$(PREFIX)" "$(DESTDIR)"
