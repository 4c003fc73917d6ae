#!/usr/bin/env bash
# The program has one thread: its sources neither start another nor need a lock.
#
#   one-thread.sh SOURCES [EXCEPT]      EXCEPT: the one file, seen from SOURCES, that may start one
set -euo pipefail

readonly starts='\b(CreateThread|CreateRemoteThread(Ex)?|CreateThreadpool\w*|QueueUserWorkItem|_beginthread(ex)?|std::(jthread|thread|async|packaged_task))\b'
readonly locks='\b(std::(\w*mutex|condition_variable\w*|\w*semaphore|latch|barrier)|\w*CriticalSection\w*|SRWLOCK|CreateMutex\w*)\b'
readonly headers='#[[:space:]]*include[[:space:]]*<(thread|future|mutex|shared_mutex|condition_variable|semaphore|latch|barrier|process\.h|pthread\.h)>'

found=$(grep -rnE "$starts|$locks|$headers" --include='*.h' --include='*.cpp' "$1" |
  grep -vF "$1/${2:-no exception}:" || true)
if [[ -n $found ]]; then
  echo "$found"
  echo "A second thread, or a lock that only a second thread would need."
  exit 1
fi
