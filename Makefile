# Zarpazo: the two commands a player or a developer needs.
#   make play   installs what is missing, builds, and starts the game
#   make test   installs what is missing, builds, and runs every test

BUILD ?= build
JOBS ?= $(shell nproc)

.PHONY: play test build deps bench clean

play: build
	./$(BUILD)/zarpazo

test: build
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

build: deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo
	cmake --build $(BUILD) -j $(JOBS)

deps:
	@./tools/install-deps.sh

bench: build
	./$(BUILD)/bench/week_bench
	./$(BUILD)/bench/match_bench
	./$(BUILD)/bench/career_bench
	./$(BUILD)/bench/saves_bench
	./$(BUILD)/bench/screen_bench

clean:
	rm -rf $(BUILD)
