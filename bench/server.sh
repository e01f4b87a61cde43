# For bench/run: a database server of its own in a temporary folder, reached only through a socket there. It
# ends with the script, also where that is killed. Where the script is run by the superuser the server is run
# by the user "postgres".

server_programs=
server_folder=
server_process=

as_server_user=()
[ "$(id -u)" -ne 0 ] || as_server_user=(setpriv --reuid postgres --regid postgres --clear-groups)

# What is written is on the disk before a commit is answered, as in a shop; that holds as far as the folder
# (TMPDIR) lies on a disk. Nothing runs in the background that would be measured with the rest.
start_server() {
    server_programs=$(printf '%s\n' /usr/lib/postgresql/*/bin | sort -V | tail -n 1)
    server_folder=$(mktemp -d "${TMPDIR:-/tmp}/kovaris-bench-XXXXXX")
    trap stop_server EXIT
    [ "$(id -u)" -ne 0 ] || chown postgres "$server_folder"
    export PGHOST=$server_folder PGUSER=postgres
    "${as_server_user[@]}" "$server_programs/initdb" -D "$server_folder/data" -U postgres -A trust -E UTF8 \
        --locale=C.UTF-8 >"$server_folder/initdb.log"
    "${as_server_user[@]}" setpriv --pdeathsig QUIT "$server_programs/postgres" -D "$server_folder/data" \
        -k "$server_folder" -h '' -c fsync=on -c synchronous_commit=on -c full_page_writes=on \
        -c autovacuum=off -c shared_buffers=512MB -c max_wal_size=4GB >"$server_folder/log" 2>&1 &
    server_process=$!
    until "$server_programs/pg_isready" -q; do
        kill -0 "$server_process" || {
            cat "$server_folder/log" >&2
            return 1
        }
        sleep 0.1
    done
}

stop_server() {
    if [ -n "$server_process" ]; then
        kill -QUIT "$server_process" 2>/dev/null || true
        wait "$server_process" || true
    fi
    rm -rf "$server_folder"
}

# A database as `make ADDRESS` fills it at the first time, kept in the file for the next times.
restore_or_make() {
    local name=$1 kept=$2 make=$3
    "$server_programs/createdb" -T template0 "$name"
    if [ -f "$kept" ]; then
        "$server_programs/pg_restore" --single-transaction -d "$name" "$kept"
    else
        "$make" "$(address_of "$name")"
        "$server_programs/pg_dump" -Fc -Z1 -f "$kept.new" "$name"
        mv "$kept.new" "$kept"
    fi
    "$server_programs/psql" -q -d "$name" -c 'vacuum analyze' -c checkpoint
}

address_of() {
    printf 'postgresql://postgres@/%s?host=%s' "$1" "$server_folder"
}
