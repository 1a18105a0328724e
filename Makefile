# The two commands of the README: `make run` and `make test`.
BUILD   ?= build
PREFIX  ?= /usr/local
JOBS    ?= $(shell nproc 2>/dev/null || echo 2)
SUDO    := $(shell [ "$$(id -u)" = 0 ] || echo sudo)

# Debian packages the build, the tests and the window need.
PACKAGES := g++ cmake make libgtest-dev \
            qt6-base-dev qt6-multimedia-dev libqt6multimedia6 \
            gstreamer1.0-plugins-base gstreamer1.0-plugins-good \
            xvfb xauth time \
            desktop-file-utils appstream strace dpkg-dev file \
            fonts-liberation fonts-urw-base35 fonts-dejavu-core fonts-lobster

.PHONY: all deps configure build test run bench format clean pictures sounds install uninstall package bench-window

all: build

deps:
	@missing=""; for p in $(PACKAGES); do \
	  dpkg-query -W -f='$${Status}' $$p 2>/dev/null | grep -q "install ok installed" || missing="$$missing $$p"; \
	done; \
	if [ -n "$$missing" ]; then \
	  echo "Installing:$$missing"; \
	  $(SUDO) env DEBIAN_FRONTEND=noninteractive apt-get update -qq && \
	  $(SUDO) env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $$missing; \
	fi

$(BUILD)/CMakeCache.txt:
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo

configure: deps $(BUILD)/CMakeCache.txt

build: configure
	cmake --build $(BUILD) -j $(JOBS)

test: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

run: build
	@if [ -x $(BUILD)/bin/holdem ]; then \
	  if [ -z "$$DISPLAY" ] && [ -z "$$WAYLAND_DISPLAY" ]; then \
	    echo "No display found. Run the game under a virtual display with: xvfb-run -a $(BUILD)/bin/holdem"; \
	  else $(BUILD)/bin/holdem; fi; \
	else $(BUILD)/bin/holdem-sim --players 8 --games 1 --seed 1 --policy rule --log; fi

bench: build
	$(BUILD)/bin/holdem-sim --bench

# `sudo make install` puts the game under PREFIX (DESTDIR is honoured);
# `sudo make uninstall` removes what it put there.
install: build
	DESTDIR=$(DESTDIR) cmake --install $(BUILD) --prefix $(PREFIX) --strip

uninstall:
	@test -f $(BUILD)/install_manifest.txt || { echo "Nothing installed from $(BUILD)."; exit 1; }
	xargs -d '\n' rm -f < $(BUILD)/install_manifest.txt
	find $$(sed -n 's|\(/share/holdem\)/.*|\1|p' $(BUILD)/install_manifest.txt | sort -u) \
	  -depth -type d -empty -delete 2>/dev/null || true

# A Debian package of the game in $(BUILD), for `apt-get install ./holdem_*.deb`.
package: build
	cd $(BUILD) && cpack -G DEB

# Launch to the first painted table, and memory at the table: medians of
# several starts under a virtual display.
bench-window: configure
	cmake --build $(BUILD) --target holdem -j $(JOBS)
	tools/window_bench.sh $(BUILD)/bin/holdem

# Redraw the committed pictures and sounds; a normal build never does. The sound
# script installs sox and espeak-ng itself: they are tools of the generator only.
pictures: configure
	cmake --build $(BUILD) --target gen_pictures -j $(JOBS)
	$(BUILD)/bin/gen_pictures

sounds:
	tools/gen_sounds.sh

format:
	clang-format -i $$(git ls-files '*.cpp' '*.h')

clean:
	rm -rf $(BUILD)
