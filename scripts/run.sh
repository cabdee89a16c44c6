#!/usr/bin/env bash
# Builds the desktop program and starts it. Its data live in its own folder,
# ~/NorvaxConstructionScheduler, as the program keeps everything beside itself.
#
# Without a display the program gets a VNC display of its own that listens on this machine's
# loopback address only: the script prints where to connect a VNC viewer (from another machine
# through an SSH tunnel), and Ctrl+C closes the program, as its Exit menu does, and the display.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release -DSCHEDULER_TESTS=OFF -DSCHEDULER_BENCH=OFF >/dev/null
cmake --build build -j"$(nproc)" --target NorvaxConstructionScheduler modem-sim

name=NorvaxConstructionScheduler
home="$HOME/$name"
program="$home/$name.bin"
mkdir -p "$home"
built="$(find build -name "$name.bin" -type f -perm -u+x -print -quit)"
# A program that is open keeps running from its file: the new one is copied beside it under a
# temporary name and renamed over it, never written into it.
if ! cmp -s "$built" "$program"; then
    cp "$built" "$home/.$name.bin.new"
    mv -f "$home/.$name.bin.new" "$program"
fi
# The modem simulator, see README.
cp -f build/src/app/modemsim/modem-sim "$home/.modem-sim.new" && mv -f "$home/.modem-sim.new" "$home/modem-sim"

# The desktop's menu entry and icon.
share="${XDG_DATA_HOME:-$HOME/.local/share}"
mkdir -p "$share/applications" "$share/icons/hicolor/scalable/apps"
sed "s|@PROGRAM@|\"$program\"|" src/app/desktop/share/norvax-construction-scheduler.desktop \
    > "$share/applications/norvax-construction-scheduler.desktop"
cp src/platform/qt/pictures/program.svg \
    "$share/icons/hicolor/scalable/apps/norvax-construction-scheduler.svg"

if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    exec "$program"
fi

config="${XDG_CONFIG_HOME:-$HOME/.config}/$name"
mkdir -p "$config"
chmod 700 "$config"
state="$config/vnc-display"

# The program is open already on its own display: this run goes there too, so that its
# "already Running" message shows where the user looks.
if [ -r "$state" ]; then
    read -r display auth port < "$state" || true
    if DISPLAY="$display" XAUTHORITY="$auth" xdpyinfo >/dev/null 2>&1; then
        echo "The program is already open on VNC display $display (127.0.0.1:$port)."
        echo "Its message is shown there."
        DISPLAY="$display" XAUTHORITY="$auth" exec "$program"
    fi
fi

# A password of its own, made once, so that other users of this machine see nothing either.
if [ ! -s "$config/vnc-password" ]; then
    head -c 300 /dev/urandom | tr -dc 'A-Za-z0-9' | cut -c1-8 > "$config/vnc-password.txt"
    vncpasswd -f < "$config/vnc-password.txt" > "$config/vnc-password"
    chmod 600 "$config/vnc-password" "$config/vnc-password.txt"
fi

number=1
while [ -e "/tmp/.X$number-lock" ] || [ -e "/tmp/.X11-unix/X$number" ]; do
    number=$((number + 1))
done
display=":$number"
port=$((5900 + number))
auth="$config/Xauthority"
: > "$auth"
xauth -f "$auth" add "$display" . "$(head -c 16 /dev/urandom | od -An -tx1 | tr -d ' \n')"

# Its own session, so that Ctrl+C reaches the program first and the display outlives it.
setsid Xvnc "$display" -localhost -interface 127.0.0.1 -rfbport "$port" -nolisten tcp \
    -auth "$auth" -SecurityTypes VncAuth -PasswordFile "$config/vnc-password" \
    -geometry 1600x1000 -depth 24 -desktop "Norvax Construction Scheduler" -AlwaysShared \
    > "$config/Xvnc.log" 2>&1 &
server=$!
stop_display() {
    kill "$server" 2>/dev/null || true
    wait "$server" 2>/dev/null || true
    rm -f "$state"
}
trap stop_display EXIT

for _ in $(seq 50); do
    DISPLAY="$display" XAUTHORITY="$auth" xdpyinfo >/dev/null 2>&1 && break
    kill -0 "$server" 2>/dev/null || break
    sleep 0.2
done
if ! DISPLAY="$display" XAUTHORITY="$auth" xdpyinfo >/dev/null 2>&1; then
    echo "The VNC display could not be started; see $config/Xvnc.log" >&2
    exit 1
fi
echo "$display $auth $port" > "$state"

cat <<MESSAGE
There is no display here, so the program runs on a VNC display of its own, which listens on
this machine's loopback address only.
  Connect a VNC viewer to:  127.0.0.1:$port   (for example: vncviewer 127.0.0.1::$port)
  From another machine:     ssh -L $port:127.0.0.1:$port $(id -un)@$(hostname)
                            then connect the viewer to localhost:$port
  Password:                 $(cat "$config/vnc-password.txt")
Press Ctrl+C here to close the program (its data are backed up as by File, Exit).
MESSAGE

DISPLAY="$display" XAUTHORITY="$auth" "$program" &
running=$!
stops=0
stop_program() {
    stops=$((stops + 1))
    # The first stop asks the program to close; a second one does not wait for it.
    if [ "$stops" -eq 1 ]; then kill -TERM "$running" 2>/dev/null || true
    else kill -KILL "$running" 2>/dev/null || true; fi
}
trap stop_program INT TERM HUP
while kill -0 "$running" 2>/dev/null; do
    wait "$running" || true
done
wait "$running" && status=0 || status=$?
exit "$status"
