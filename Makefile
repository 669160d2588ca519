# Set-up, build and checks. Every target installs what is missing first.
BUILD_DIR ?= build
ASAN_BUILD_DIR ?= build-asan
BENCH_BUILD_DIR ?= build-bench
FUZZ_BUILD_DIR ?= build-fuzz
FUZZ_SECONDS ?= 60
# The sanitizer build is unoptimised: instrumented code compiled at -O2 takes four times
# as long to build, and -O0 hides no faulty access from the sanitizers.
ASAN_BUILD_TYPE ?= Debug
# The suites CI runs under the sanitizers: those that feed the engine what comes from
# outside (property lists and resources, pane bundles and the printer's data in the PPD,
# favorite files and their folders, SOAP replies and failing servers). The rest (Qt views,
# the command, the panel, keyword conversion) is left to `make test-asan`.
ASAN_QUICK_SUITES ?= core_tests panes_tests favorites_tests print_service_tests
JOBS ?= $(shell nproc)
CMAKE_FLAGS ?=
# Debug information: -g1 (CI) keeps file and line in every trace and builds a quarter faster.
DEBUG_INFO ?= -g
CMAKE_CONFIGURE = cmake -S . -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DOSTRIN_WERROR=ON \
  "-DCMAKE_CXX_FLAGS_RELWITHDEBINFO=-O2 $(DEBUG_INFO) -DNDEBUG" "-DCMAKE_CXX_FLAGS_DEBUG=$(DEBUG_INFO)" $(CMAKE_FLAGS)
ASAN_CONFIGURE = $(CMAKE_CONFIGURE) -B $(ASAN_BUILD_DIR) -DOSTRIN_SANITIZE=ON -DCMAKE_BUILD_TYPE=$(ASAN_BUILD_TYPE)
space := $(subst ,, )

.PHONY: all deps build run test test-asan test-asan-quick bench fuzz install clean

all: build

deps:
	@bash scripts/install-deps.sh

build: deps
	@$(CMAKE_CONFIGURE) -B $(BUILD_DIR) >/dev/null
	@cmake --build $(BUILD_DIR) -j $(JOBS)

run: build
	$(BUILD_DIR)/app/ostrin-flow options -o StapleMode=TopLeftCorner -o DuplexMode=DuplexNoTumble -o MediaTypeSequence=3 --format lp

test: build
	cd $(BUILD_DIR) && ctest --output-on-failure -j $(JOBS)

test-asan: deps
	@$(ASAN_CONFIGURE) >/dev/null
	@cmake --build $(ASAN_BUILD_DIR) -j $(JOBS)
	cd $(ASAN_BUILD_DIR) && ctest --output-on-failure -j $(JOBS)

# Each suite's cases carry the suite's name as their label.
test-asan-quick: deps
	@$(ASAN_CONFIGURE) >/dev/null
	@cmake --build $(ASAN_BUILD_DIR) -j $(JOBS) --target $(ASAN_QUICK_SUITES)
	cd $(ASAN_BUILD_DIR) && ctest --output-on-failure -j $(JOBS) -L '^($(subst $(space),|,$(strip $(ASAN_QUICK_SUITES))))$$'

bench: deps
	@cmake -S . -G Ninja -B $(BENCH_BUILD_DIR) -DCMAKE_BUILD_TYPE=Release -DOSTRIN_BUILD_BENCH=ON \
	  -DOSTRIN_BUILD_TESTS=OFF $(CMAKE_FLAGS) >/dev/null
	@cmake --build $(BENCH_BUILD_DIR) -j $(JOBS)
	@for program in $(BENCH_BUILD_DIR)/bench/bin/*; do echo "== $$(basename $$program)"; $$program || exit 1; done

# Each fuzz target runs FUZZ_SECONDS on its kept corpus (fuzz/corpus/<target>).
fuzz:
	@bash scripts/install-deps.sh --fuzz
	@CC=clang CXX=clang++ cmake -S . -G Ninja -B $(FUZZ_BUILD_DIR) -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DOSTRIN_BUILD_FUZZ=ON -DOSTRIN_BUILD_TESTS=OFF $(CMAKE_FLAGS) >/dev/null
	@cmake --build $(FUZZ_BUILD_DIR) -j $(JOBS)
	@for program in $(FUZZ_BUILD_DIR)/fuzz/bin/*; do name=$$(basename $$program); \
	  mkdir -p fuzz/corpus/$$name; echo "== $$name"; \
	  $$program -max_total_time=$(FUZZ_SECONDS) fuzz/corpus/$$name || exit 1; done

install: build
	cmake --install $(BUILD_DIR) $(if $(PREFIX),--prefix $(PREFIX))

clean:
	rm -rf $(BUILD_DIR) $(ASAN_BUILD_DIR) $(BENCH_BUILD_DIR) $(FUZZ_BUILD_DIR)
