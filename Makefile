# The two set-up commands: `make demo` and `make test`. Both install what is missing first.
BUILD      ?= build
ASAN_BUILD ?= build-asan
FUZZ_BUILD ?= build-fuzz
GALLERY_OUT ?= $(BUILD)/gallery-out
JOBS       ?= $(shell nproc)

.PHONY: all deps build demo test test-asan bench fuzz install clean format

all: build

deps:
	@scripts/install-deps

$(BUILD)/build.ninja:
	cmake -S . -B $(BUILD) -G Ninja

build: deps $(BUILD)/build.ninja
	cmake --build $(BUILD) -j $(JOBS)

# Headless: the gallery's pictures, and the screens of Channel Designer's scripted run in
# $(GALLERY_OUT)/app. With a display, Channel Designer then opens for the user.
demo: build
	$(BUILD)/apps/gallery/gallery --out $(GALLERY_OUT)
	mkdir -p $(BUILD)/test-tmp/channel-designer $(GALLERY_OUT)/app
	TMPDIR=$(abspath $(BUILD))/test-tmp/channel-designer CHANNEL_DESIGNER_SHOTS=$(abspath $(GALLERY_OUT))/app \
		$(BUILD)/apps/channel-designer/test_channel_designer --gtest_filter='ScriptedRun.*' --gtest_brief=1
	@ls $(GALLERY_OUT)/app
	@if [ -n "$$DISPLAY" ]; then $(BUILD)/apps/channel-designer/channel-designer; fi

test: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

$(ASAN_BUILD)/build.ninja:
	CC=clang CXX=clang++ cmake -S . -B $(ASAN_BUILD) -G Ninja -DORVA_SANITIZE=ON -DORVA_BUILD_BENCH=OFF -DCMAKE_BUILD_TYPE=Debug

# The sanitizer run plays the whole event storm: 250,000 events on each of its four grids.
test-asan: deps $(ASAN_BUILD)/build.ninja
	cmake --build $(ASAN_BUILD) -j $(JOBS)
	cd $(ASAN_BUILD) && ORVA_STORM_EVENTS=250000 ASAN_OPTIONS=detect_leaks=1 LSAN_OPTIONS=suppressions=$(CURDIR)/tests/lsan.supp UBSAN_OPTIONS=print_stacktrace=1 ctest --output-on-failure -j $(JOBS)

bench: deps
	cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Release
	cmake --build $(BUILD) -j $(JOBS) --target run-bench

$(FUZZ_BUILD)/build.ninja:
	CC=clang CXX=clang++ cmake -S . -B $(FUZZ_BUILD) -G Ninja -DORVA_BUILD_FUZZ=ON -DORVA_BUILD_TESTS=OFF -DORVA_BUILD_BENCH=OFF

fuzz: deps $(FUZZ_BUILD)/build.ninja
	cmake --build $(FUZZ_BUILD) -j $(JOBS)

install: build
	cmake --install $(BUILD) --prefix $(or $(PREFIX),/usr/local)

format:
	find src apps tests bench fuzz -name '*.h' -o -name '*.cpp' | xargs clang-format -i

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) $(FUZZ_BUILD)
