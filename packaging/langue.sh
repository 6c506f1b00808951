# Sourced: French names of tables and files need a UTF-8 locale, which a bare system does not set.
if [[ "$(locale charmap 2>/dev/null)" != UTF-8 ]]; then
    export LC_ALL=C.UTF-8
fi
