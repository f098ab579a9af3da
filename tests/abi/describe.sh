# Shared by the test and by tools/abi-baseline: what belongs to the binary interface.

abi=$(dirname "$(realpath "${BASH_SOURCE[0]}")")

# describe LIBRARY HEADERS OUT: writes the interface of the library as XML, without anything that depends on the folder
# it was built in.
describe() {
    abidw --no-corpus-path --no-comp-dir-path --no-show-locs --no-parameter-names --no-elf-needed \
        --exported-interfaces-only --drop-private-types --headers-dir "$2" \
        --suppressions "$abi/symbols.abignore" --out-file "$3" "$1"
}
