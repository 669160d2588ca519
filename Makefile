# Set-up, build and checks. Every target installs what is missing first.
BUILD_DIR ?= build
ASAN_BUILD_DIR ?= build-asan
JOBS ?= $(shell nproc)
CMAKE_FLAGS ?=
CMAKE_CONFIGURE = cmake -S . -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DOSTRIN_WERROR=ON $(CMAKE_FLAGS)

.PHONY: all deps build run test test-asan install clean

all: build

deps:
	@bash scripts/install-deps.sh

build: deps
	@$(CMAKE_CONFIGURE) -B $(BUILD_DIR) >/dev/null
	@cmake --build $(BUILD_DIR) -j $(JOBS)

run: build
	$(BUILD_DIR)/app/ostrin-flow ppd

test: build
	cd $(BUILD_DIR) && ctest --output-on-failure -j $(JOBS)

test-asan: deps
	@$(CMAKE_CONFIGURE) -B $(ASAN_BUILD_DIR) -DOSTRIN_SANITIZE=ON >/dev/null
	@cmake --build $(ASAN_BUILD_DIR) -j $(JOBS)
	cd $(ASAN_BUILD_DIR) && ctest --output-on-failure -j $(JOBS)

install: build
	cmake --install $(BUILD_DIR) $(if $(PREFIX),--prefix $(PREFIX))

clean:
	rm -rf $(BUILD_DIR) $(ASAN_BUILD_DIR)
