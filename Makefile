# The set-up and run commands: each installs what is missing, then configures and builds with CMake and Ninja.
BUILD_DIR    ?= build
SANITIZE_DIR ?= build-sanitize
BUILD_TYPE   ?= RelWithDebInfo
JOBS         ?= $(shell nproc 2>/dev/null || echo 2)

.PHONY: setup build demo test sanitize bench install clean

setup:
	@bash scripts/setup.sh

build: setup
	cmake -S . -B $(BUILD_DIR) -G Ninja -DCMAKE_BUILD_TYPE=$(BUILD_TYPE)
	cmake --build $(BUILD_DIR) -j $(JOBS)

demo: build
	./$(BUILD_DIR)/examples/host_example

test: build
	ctest --test-dir $(BUILD_DIR) --output-on-failure -j $(JOBS)

sanitize: setup
	cmake -S . -B $(SANITIZE_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DTQWORKRIG_SANITIZE=ON -DTQWORKRIG_BUILD_BENCHMARKS=OFF
	cmake --build $(SANITIZE_DIR) -j $(JOBS)
	ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
	  ctest --test-dir $(SANITIZE_DIR) --output-on-failure -j $(JOBS)

bench: setup
	cmake -S . -B build-release -G Ninja -DCMAKE_BUILD_TYPE=Release -DTQWORKRIG_BUILD_TESTS=OFF
	cmake --build build-release -j $(JOBS)
	for b in build-release/bench/*_bench; do $$b; done

install: build
	cmake --install $(BUILD_DIR)

clean:
	rm -rf $(BUILD_DIR) $(SANITIZE_DIR) build-release
