# shellcheck shell=bash disable=SC2154
# For test programs in bash: checks with names, which are counted. To be sourced; needs a folder $work.
tests=0 failures=0

check() {  # NAME COMMAND...
  local name=$1
  shift
  tests=$((tests + 1))
  if "$@" >"$work/check.log" 2>&1; then
    echo "ok      $name"
  else
    failures=$((failures + 1))
    echo "FAILED  $name"
    sed 's/^/        /' "$work/check.log"
  fi
}

# Writes the counts where scripts/test adds them up. Its status is that of the whole test.
finish_checks() {  # RESULTS.xml
  echo "<testsuites tests=\"$tests\" failures=\"$failures\"></testsuites>" >"$1"
  [ "$tests" -gt 0 ] && [ "$failures" -eq 0 ]
}
