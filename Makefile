# The front door. Everything behind it is CMake (see CMakePresets.json) and the scripts in tools/.
#
#   make run [DECK=talk.pptx]   build and open the prompter, with that deck's notes
#   make test                   build and run every test
#   make bench                  print the measured speed and memory
#   make gallery               every window in every state on one picture, build/gallery.png
#   make sanitize               the unit tests under AddressSanitizer and UBSan, those with threads under ThreadSanitizer
#   make format                 lay the sources out;  make tidy: static analysis

export ORVELLO_COMPILER_LAUNCHER := $(shell command -v ccache 2>/dev/null)

.PHONY: run test bench gallery sanitize format tidy build clean

run:
	@tools/setup build
	@$(MAKE) --no-print-directory build ORVELLO_TARGET=orvello
	@tools/run "$(DECK)"

test:
	@tools/setup test
	@$(MAKE) --no-print-directory build
	@ctest --preset release

ORVELLO_TARGET := all
build:
	@cmake --preset release > build.log 2>&1 || { cat build.log; rm -f build.log; exit 1; }; rm -f build.log
	@cmake --build --preset release --target $(ORVELLO_TARGET)

bench:
	@tools/setup test
	@$(MAKE) --no-print-directory build
	@tools/bench

gallery:
	@tools/setup test
	@$(MAKE) --no-print-directory build ORVELLO_TARGET=orvello-gallery
	@tools/gallery build/Tests/Gallery/orvello-gallery build/gallery.png

sanitize:
	@tools/setup test
	@set -e; for preset in asan tsan; do \
	    cmake --preset $$preset > /dev/null; \
	    cmake --build --preset $$preset; \
	    ctest --preset $$preset; \
	done

format:
	@git ls-files '*.h' '*.cpp' '*.mm' | xargs clang-format -i

tidy:
	@tools/setup test
	@$(MAKE) --no-print-directory build
	@tools/tidy

clean:
	@rm -rf build
