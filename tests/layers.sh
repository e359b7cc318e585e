#!/usr/bin/env bash
# Holds the includes of each layer against what the layer may know. Argument: the source directory.
set -uo pipefail
cd "$1" || exit 1
status=0

# Files, then a pattern of the quoted includes that they may have. In angle brackets they may have
# the C++ standard library alone, whose headers have no ending.
layer() {
    local files=$1 allowed=$2 bad
    bad=$(grep -HnE '^#include' $files | grep -vE "#include (\"($allowed)|<[a-z_]+>)")
    [[ -z $bad ]] || { echo "$bad"; status=1; }
}
program='frame/|numbers/|lists/|bankroll/|storage/|common/'
layer "$(find frame numbers lists bankroll storage common -name '*.h' -o -name '*.cpp')" \
    "$program|toolkit/|platform/[A-Za-z]+\.h"
layer "$(find toolkit -name '*.h' -o -name '*.cpp')" 'toolkit/|platform/RuntimeError\.h'
layer "$(ls platform/*.h platform/*.cpp)" 'platform/[A-Za-z]+\.h'
layer main.cpp "$program|desktop/[A-Za-z]+\.h|platform/[A-Za-z]+\.h"
grep -HnE '#include "' -r desktop | grep -vE '"(desktop/|toolkit/|platform/[A-Za-z]+\.h)' &&
    status=1
grep -HnE "#include \"($program|toolkit/|desktop/)" -r platform && status=1
exit $status
