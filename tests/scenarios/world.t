What the world around a run does to it.

  $ . "$TESTDIR/setup.sh"
  $ quiet() { real --silent "$@"; echo "=> $?"; }

Runs that start the CLI take turns, from their first command to their end. A signal ends
the wait; a simulated run does not wait, and a daemon that the CLI leaves behind keeps
nobody waiting.

  $ lay_standin && on download1 'sleep 0.3'
  $ quiet $FLASH_FM & sleep 0.1; quiet $FLASH_FM; wait
  => 0
  => 0
  $ cut -d ' ' -f 1 cli/calls.log | uniq | xargs
  listhbas hbaattributes targetmapping download listhbas hbaattributes targetmapping download
  $ flock hbacmd timeout -s INT 0.2 "$CNATOOL_STANDIN" --conpath blade; echo "=> $?"
  => 124
  $ lay_standin && on hbaattributes1 'sleep 9 >/dev/null 2>&1 & echo $! >cli/pid'
  $ flock hbacmd "$CNATOOL_STANDIN" --conpath blade --simulate; quiet $FLASH_FM; flock -n hbacmd kill "$(cat cli/pid)"
  Error: Could not open file blade//local_hba_list.out
  
  No Blade Engine was found in this system.
  
  => 0

What is said is there before a wait and before each command.

  $ lay_standin && flock hbacmd timeout -s INT 0.2 "$CNATOOL_STANDIN" --conpath blade -v 3 | head -n 1
  env: Environment variable TMPDIR is not set.
  $ on listhbas1 'echo "the list is made" >&2; exit 3'; real -v 6 >out 2>&1; sed -n '/hbacmd listhbas/,/^Fail/p' out
  ./hbacmd listhbas > blade//local_hba_list.out 
  the list is made
  
  Fail, "hbacmd listhbas" command returned code 768.

A download ignores what could break it off, limits included; the inventory's commands
ignore nothing, and neither finds a signal blocked.

  $ cat >signals <<'EOF'
  > for state in SigIgn SigBlk; do
  >     mask=0x$(sed -n "s/$state:.*\(.\{8\}\)$/\1/p" /proc/$$/status)
  >     echo $state $(for n in $(seq 31); do [ $((mask >> (n - 1) & 1)) -eq 0 ] || kill -l $n; done) >&2
  > done
  > EOF
  $ lay_standin && on hbaattributes1 '. ./signals' && on download1 '. ./signals' && quiet $FLASH_FM
  SigIgn
  SigBlk
  SigIgn HUP INT QUIT PIPE TERM XCPU XFSZ
  SigBlk
  => 0
  $ lay_standin && on download1 'head -c 99999 /dev/zero 2>/dev/null' && (ulimit -f 8 && real -v 6 $FLASH_FM >out; echo "=> $?")
  => 10

Nothing is written to what is no regular file with one name; a run that meets it neither
hangs nor takes it for a report.

  $ meets() {
  >     for put in mkfifo 'ln -s ../secret' 'ln secret'; do
  >         lay_standin && echo precious >secret && $put "blade/$1"
  >         timeout 9 "$CNATOOL_STANDIN" --conpath blade -v 6 $FLASH_FM >out; echo "=> $?"
  >         grep -o -e 'returned code -.*' -e '^Error.*' -e '^No Blade' out; cat secret
  >     done | sort | uniq -c
  > }
  $ meets FWtrace.out
        3 => 10
        3 precious
        3 returned code -1.
  $ meets local_hba_list.out
        3 => 0
        3 precious
  $ meets VM10250117_0_hba_attributes.out
        3 => 0
        3 precious
        3 returned code -1.
  $ lay_standin && mkdir blade/FWtrace.out && real $FLASH_FM 2>&1 | grep -o 'returned code.*'
  returned code 512.

A report is emptied before its command runs.

  $ lay_standin && touch blade/local_hba_list.out && chmod 666 blade/local_hba_list.out
  $ on listhbas1 'wc -c <blade/local_hba_list.out >&2; exec cat cli/reports/local_hba_list.out'
  $ echo stale >blade/local_hba_list.out && (umask 0 && quiet $FLASH_FM) && find blade -type f -perm /022
  0
  => 0
  blade/local_hba_list.out

What can't be read to its end counts for nothing.

  $ spoilt() { lay_blade && ln -sf /proc/self/mem "blade/$1" && simulated -v 1 $FLASH_FM; }
  $ rows spoilt <<'EOF'
  > FC_HBA_Conditions.txt => 55 Error: Fatal error!
  > local_hba_list.out => 13 Error: Could not open file blade//local_hba_list.out\n\nNo Blade Engine*\n
  > EOF

Nothing in the environment changes what the shell does.

  $ lay_standin && on hbaattributes1 'tr "\0" "\n" </proc/$$/environ | grep -c -e OPTS= -e OPTIND= >&2'
  $ env OPTIND=x SHELLOPTS=noexec BASHOPTS=y "$CNATOOL_STANDIN" --conpath blade --silent $FLASH_FM; echo "=> $?"
  0
  => 0

A terminal is told what the tool waits for, which is wiped; a file never.

  $ watched() { script -qec "'$CNATOOL_STANDIN' --conpath blade $*" /dev/null; }
  $ lay_standin && watched $FLASH_FM | tr '\r' '~' >out; head -c 28 out; tr '~' '\n' <out | grep -e '^port 5' -e '^down'
  ~adapter list~~            ~port 5 of 11: attributes
  port 5 of 11: target mapping
  download of the firmware
  $ watched --silent; watched -v 0; watched -d 1; real $FLASH_FM 2>&1 | grep -c 'of 11'
  0
  [1]
