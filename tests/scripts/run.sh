#!/bin/bash
# Tests of ./run: run.sh CHECKOUT CASE. Uses a copy of the scripts with programs that only record their arguments.
set -euo pipefail

room=$(mktemp -d /tmp/zpt.XXXXXX)
clean_up() {
    # shellcheck disable=SC2046
    kill $(jobs -p) 2>/dev/null || true
    rm -rf -- "$room"
}
trap clean_up EXIT
chmod 711 "$room"
house="$room/the house"
calls=$room/calls
settings=$room/data/zavelpos/settings.ini

fail() { printf 'FAIL: %s\n' "$*" >&2; [[ ! -e $calls ]] || sed 's/^/  called: /' "$calls" >&2; exit 1; }
equal() { [[ $2 == "$3" ]] || fail "$1: expected '$2', got '$3'"; }
program() { install -D -m 755 /dev/stdin "$house/$1"; }

install -d "$house/scripts"
cp -- "$1/run" "$house/"
cp -- "$1/scripts/private-postgres" "$1/scripts/start-program" "$1/scripts/sample-restaurant" "$house/scripts/"
program scripts/install-packages <<<'#!/bin/bash'
program scripts/build <<<'#!/bin/bash'
program scripts/tour <<PROGRAM
#!/bin/bash
printf 'tour' >>$calls; printf ' <%s>' "\$@" >>$calls; echo >>$calls
PROGRAM
# Exits like the real program: 3 while nothing is installed. If $room/break exists, it fails once.
program build/release/bin/zavel-setup <<PROGRAM
#!/bin/bash
if [[ \$1 == status ]]; then [[ -e $room/installed ]] && exit 0; exit 3; fi
echo "\$* password \$ZAVEL_DB_PASSWORD" >>$calls
rm $room/break 2>/dev/null && exit 9
touch $room/installed
if [[ "\$*" =~ --settings\ ([^ ]+) ]]; then echo x >"\${BASH_REMATCH[1]}"
elif [[ "\$*" == *--write-settings* ]]; then mkdir -p ${settings%/*}; echo x >$settings; fi
PROGRAM
program build/release/bin/zavelpos <<PROGRAM
#!/bin/bash
printf 'program' >>$calls; printf ' <%s>' "\$@" >>$calls; echo >>$calls
exit 5
PROGRAM

port=$((20000 + RANDOM % 12000))
start() { # ARGUMENTS of ./run; leaves the exit status in $status
    : >"$calls"
    status=0
    env -u ZAVEL_DB_PASSWORD -u WAYLAND_DISPLAY DISPLAY=:77 XDG_DATA_HOME="$room/data" ZAVEL_CLUSTER="$room/cluster" \
        ZAVEL_DB_PORT="$port" "$house/run" "$@" >"$room/out" 2>&1 || status=$?
}
install_call="install --create-database%s --host 127.0.0.1 --port $port --user postgres --database ZavelPOS password Qx7!Rm2z"

case_the_first_start_installs_and_the_next_only_starts() {
    start --one 'two words'
    # shellcheck disable=SC2059
    equal 'first start' "$(printf "$install_call" ' --write-settings')"$'\nprogram <--one> <two words>' "$(<"$calls")"
    equal 'exit status' 5 "$status"
    start
    equal 'next start' 'program <>' "$(<"$calls")"
}

case_an_installation_cut_short_is_done_again() {
    touch "$room/break"
    start
    equal 'exit status of the broken installation' 9 "$status"
    ! grep -q program "$calls" || fail 'the program started on half a database'
    start
    # shellcheck disable=SC2059
    equal 'second start' "$(printf "$install_call" ' --write-settings --replace')"$'\nprogram <>' "$(<"$calls")"
    start
    equal 'third start' 'program <>' "$(<"$calls")"
}

case_a_usable_database_is_not_replaced_after_a_failed_installation() {
    touch "$room/break"
    start
    touch "$room/installed" # repaired by hand, and perhaps used for sales since
    start
    equal 'exit status' 1 "$status"
    equal 'calls' '' "$(<"$calls")"
    grep -q "To keep it, remove the file $room/cluster/installing" "$room/out" || fail "it says: $(<"$room/out")"
}

case_settings_for_another_server_start_none_here() {
    install -D /dev/stdin "$settings" <<<x
    start
    equal 'calls' 'program <>' "$(<"$calls")"
    [[ ! -e $room/cluster ]] || fail 'a cluster was made all the same'
}

case_without_a_display_the_tour_is_played() {
    : >"$calls"
    env -u DISPLAY -u WAYLAND_DISPLAY XDG_DATA_HOME="$room/data" ZAVEL_CLUSTER="$room/cluster" "$house/run" >"$room/out"
    equal 'calls' 'tour <dine-in>' "$(<"$calls")"
    grep -q 'no display' "$room/out" || fail "it does not say so: $(<"$room/out")"
    start --tour
    equal 'asked for' 'tour <dine-in>' "$(<"$calls")"
    start --tour take-away
    equal 'asked for by name' 'tour <take-away>' "$(<"$calls")"
    [[ ! -e $room/data && ! -e $room/cluster ]] || fail "the tour touched the user's data"
}

case_a_sample_restaurant_stands_beside_the_real_one() {
    start
    start --sample --one
    local to="--host 127.0.0.1 --port $port --user postgres --database ZavelPOSSample" made=$room/data/zavelpos/sample
    equal 'first sample' "install --create-database --replace $to --write-settings --settings $made/settings.new\
 password Qx7!Rm2z"$'\n'"sample-trade --months 3 --per-day 60 $to password Qx7!Rm2z"$'\nprogram <--one>' "$(<"$calls")"
    [[ -e $made/zavelpos/settings.ini ]] || fail 'the sample has no settings of its own'
    start --sample
    equal 'the sample again' 'program <>' "$(<"$calls")"
    start --sample remove
    equal 'removing' '0 ' "$status $(<"$calls")"
    [[ ! -e $made && -e $settings ]] || fail 'not just the sample was removed'
    start
    equal 'the real one' 'program <>' "$(<"$calls")"
}

"case_$2"
