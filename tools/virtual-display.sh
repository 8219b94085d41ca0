# Sourced by the scripts that need a display of their own: starts one, and ends everything that was
# started when the script ends. Processes to be ended as well go into $started.

work=$(mktemp -d)
started=

stop_all() {
    for pid in $started; do
        kill "$pid" 2>/dev/null || continue
        wait "$pid" 2>/dev/null || true
    done
    rm -rf "$work"
}
trap stop_all EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

# await PID FILE LOG: waits until the process has written FILE; shows LOG if it ends first or takes
# longer than 20 seconds.
await() {
    tries=0
    until [ -s "$2" ]; do
        tries=$((tries + 1))
        if [ "$tries" -gt 200 ] || ! kill -0 "$1" 2>/dev/null; then
            cat "$3" >&2
            exit 1
        fi
        sleep 0.1
    done
}

# start_display SIZE
start_display() {
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset 3>"$work/display" 2>"$work/xvfb.log" &
    xvfb=$!
    started=$xvfb
    await "$xvfb" "$work/display" "$work/xvfb.log"
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
    # The window is black; so is the screen until somebody paints it.
    xsetroot -solid '#4a5a6a'
}

# A window that opens while the window manager is still starting may never show: wait until it is up.
start_window_manager() {
    openbox --startup "sh -c 'echo up >$work/managed'" >"$work/openbox.log" 2>&1 &
    openbox=$!
    started="$openbox $started"
    await "$openbox" "$work/managed" "$work/openbox.log"
}
