#!/bin/bash
# Tests of scripts/private-postgres: private_postgres.sh SCRIPT CASE. Exits with 77 (skipped) if a case is not possible.
set -euo pipefail

psql=/usr/lib/postgresql/15/bin/psql
# The server's user needs access to the folder, and an ordinary user must be able to read the script, wherever the
# checkout is.
room=$(mktemp -d /tmp/zpt.XXXXXX)
clean_up() {
    # shellcheck disable=SC2046
    kill $(jobs -p) ${server-} 2>/dev/null || true
    rm -rf -- "$room"
}
trap clean_up EXIT
chmod 711 "$room"
script=$room/private-postgres
install -m 755 -- "$1" "$script"
unset ZAVEL_DB_PASSWORD ZAVEL_DB_PORT

fail() { printf 'FAIL: %s\n' "$*" >&2; exit 1; }
equal() { [[ $2 == "$3" ]] || fail "$1: expected '$2', got '$3'"; }
until_true() { # WHAT COMMAND...
    local what=$1 i
    shift
    for ((i = 0; i < 600; i++)); do
        if "$@"; then return 0; fi
        sleep 0.05
    done
    fail "waited 30 s in vain: $what"
}
gone() { ! [[ -d /proc/$1 ]] || [[ $(sed -n 's/^State:\s*\(.\).*/\1/p' "/proc/$1/status" 2>/dev/null) == [ZX] ]]; }
free_port() {
    local port
    for _ in {1..50}; do
        port=$((20000 + RANDOM % 12000))
        (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null || { echo "$port"; return; }
    done
    fail 'no free port found'
}

throwaway_sql="$psql -X -At -h \"\$ZAVEL_TEST_PGHOST\" -p \"\$ZAVEL_TEST_PGPORT\" -U \"\$ZAVEL_TEST_PGUSER\" postgres -c"
kept_sql="PGPASSWORD=\$ZAVEL_DB_PASSWORD $psql -X -At -h 127.0.0.1 -p \"\$ZAVEL_DB_PORT\" -U postgres -w postgres -c"
server_pid="select split_part(pg_read_file('postmaster.pid'), chr(10), 1)"

# Starts a server for a command that never ends; sets $runner, $server, $sleeper and $host.
start_waiting() { # SCRIPT-ARGUMENTS... and the statement to run
    local sql=${!#}
    "$script" "${@:1:$#-1}" -- bash -c "$sql \"$server_pid\" >$room/server
        echo \"\${ZAVEL_TEST_PGHOST-}\" >$room/host; echo \$\$ >$room/sleeper; exec sleep 600" &
    runner=$!
    until_true 'the command is running' test -s "$room/sleeper"
    server=$(<"$room/server") sleeper=$(<"$room/sleeper") host=$(<"$room/host")
    [[ $server -gt 1 ]] || fail 'no server found'
    ! gone "$server" || fail 'the server is not running'
}

case_a_command_finds_its_server_and_its_exit_status_is_passed_on() {
    local status=0 answer
    answer=$("$script" throwaway -- bash -c "$throwaway_sql 'show timezone'; exit 37") || status=$?
    equal 'exit status' 37 "$status"
    equal 'answer of the server' Asia/Jakarta "$answer"
    equal 'input reaches the command' soup "$(echo soup | "$script" throwaway -- cat)"
}

case_nothing_is_left_after_a_normal_end() {
    "$script" throwaway -- bash -c "$throwaway_sql \"$server_pid\"; echo \"\$ZAVEL_TEST_PGHOST\"" >"$room/out"
    mapfile -t out <"$room/out"
    gone "${out[0]}" || fail 'the server is still running'
    [[ ! -e $(dirname "${out[1]}") ]] || fail 'the folder is still there'
}

case_a_terminated_script_takes_server_command_and_folder_with_it() {
    local status=0
    start_waiting throwaway "$throwaway_sql"
    kill -TERM "$runner"
    wait "$runner" || status=$?
    equal 'exit status' 143 "$status"
    gone "$server" || fail 'the server is still running'
    gone "$sleeper" || fail 'the command is still running'
    [[ ! -e $(dirname "$host") ]] || fail 'the folder is still there'
}

case_an_interrupted_command_keeps_its_server_until_it_has_ended() {
    local status=0
    # Background jobs of a script ignore SIGINT; this restores it.
    env --default-signal=INT "$script" throwaway -- bash -c "trap '$throwaway_sql \"select 42\"; exit 9' INT
        touch $room/ready; while :; do sleep 0.1; done" >"$room/out" &
    until_true 'the command is running' test -e "$room/ready"
    kill -INT $!
    wait $! || status=$?
    equal 'exit status' 9 "$status"
    equal 'last answer' 42 "$(<"$room/out")"
}

case_a_killed_script_takes_server_and_command_with_it() {
    start_waiting throwaway "$throwaway_sql"
    kill -KILL "$runner"
    wait "$runner" 2>/dev/null || true
    until_true 'the server ends' gone "$server"
    until_true 'the command ends' gone "$sleeper"
    rm -rf -- "$(dirname "$host")"
}

case_a_kept_cluster_asks_for_its_password_and_keeps_its_data() {
    local cluster="$room/two words/cluster" port
    port=$(free_port)
    install -d -m 755 "$room/two words"
    ZAVEL_DB_PASSWORD="it's 5%" "$script" keep "$cluster" "$port" -- bash -c "$kept_sql 'create table soup (n int)'" >/dev/null
    ZAVEL_DB_PASSWORD="it's 5%" "$script" keep "$cluster" "$port" -- bash -c "$kept_sql 'select count(*) from soup'" >"$room/out"
    equal 'rows of the kept table' 0 "$(<"$room/out")"
    ! "$script" keep "$cluster" "$port" -- bash -c "$kept_sql 'select 1'" >/dev/null 2>"$room/err" ||
        fail 'let in with the default password instead of its own'
    grep -q 'password authentication failed' "$room/err" || fail "unexpected: $(<"$room/err")"
    ZAVEL_DB_PASSWORD="it's 5%" "$script" keep "$cluster" "$port" -- bash -c "$kept_sql 'show fsync'" >"$room/out"
    equal 'safe on disk' on "$(<"$room/out")"
}

case_a_kept_cluster_starts_again_after_a_kill() {
    local port answer
    port=$(free_port)
    start_waiting keep "$room/cluster" "$port" "$kept_sql"
    kill -KILL "$runner"
    wait "$runner" 2>/dev/null || true
    # Immediately, while the old server may still be shutting down.
    answer=$("$script" keep "$room/cluster" "$port" -- bash -c "$kept_sql 'select 1'")
    equal 'answer' 1 "$answer"
    gone "$server" || fail 'the first server is still running'
}

case_a_stale_process_id_of_another_program_is_no_hindrance() {
    local port answer
    port=$(free_port)
    "$script" keep "$room/cluster" "$port" -- true
    # After a power cut, the process id may belong to any program, even of the same user.
    if [[ $EUID -eq 0 ]]; then setpriv --reuid postgres --regid postgres --clear-groups sleep 600 & else sleep 600 & fi
    local other=$!
    printf '%s\n' "$other" "$room/cluster/data" 0 "$port" '' '' '' ready >"$room/cluster/data/postmaster.pid"
    answer=$("$script" keep "$room/cluster" "$port" -- bash -c "$kept_sql 'select 1'")
    kill "$other"
    equal 'answer' 1 "$answer"
}

case_a_cluster_in_use_and_a_taken_port_are_told_clearly() {
    local port
    port=$(free_port)
    start_waiting keep "$room/cluster" "$port" "$kept_sql"
    ! "$script" keep "$room/cluster" "$port" -- touch "$room/started" 2>"$room/err" || fail 'started twice'
    grep -q 'is in use' "$room/err" || fail "unexpected: $(<"$room/err")"
    ! "$script" keep "$room/second" "$port" -- touch "$room/started" 2>"$room/err" || fail 'started on a taken port'
    grep -q "port $port on 127.0.0.1 is taken" "$room/err" || fail "unexpected: $(<"$room/err")"
    [[ ! -e $room/started ]] || fail 'the command ran without a server'
    ! gone "$server" || fail 'the first server was disturbed'
    kill -TERM "$runner"
    wait "$runner" || true
    gone "$server" || fail 'the first server is still running'
}

case_an_ordinary_user_has_servers_too() {
    local user port as=()
    if [[ $EUID -eq 0 ]]; then
        user=nobody
        getent passwd "$user" >/dev/null || { echo "SKIPPED: no user $user here"; exit 77; }
        as=(setpriv --reuid "$user" --regid "$(id -g "$user")" --clear-groups)
    fi
    port=$(free_port)
    install -d -m 777 "$room/home"
    equal 'throw-away' 1 "$("${as[@]}" "$script" throwaway -- bash -c "$throwaway_sql 'select 1'")"
    equal 'kept' 1 "$("${as[@]}" "$script" keep "$room/home/cluster" "$port" -- bash -c "$kept_sql 'select 1'")"
    equal 'the owner of the data' "$(stat -c %U "$room/home/cluster")" "$(stat -c %U "$room/home/cluster/data")"
    equal 'others stay out' 700 "$(stat -c %a "$room/home/cluster")"
}

"case_$2"
