What the world around a run does to it.

  $ . "$TESTDIR/setup.sh"
  $ quiet() { real --silent "$@"; echo "=> $?"; }

Runs that start the CLI take turns, from their first command to their end. A simulated run
does not wait, and a daemon that the CLI leaves behind keeps nobody waiting.

  $ lay_standin && on download1 'sleep 0.3'
  $ quiet $FLASH_FM & sleep 0.1; quiet $FLASH_FM; wait
  => 0
  => 0
  $ cut -d ' ' -f 1 cli/calls.log | uniq | xargs
  listhbas hbaattributes targetmapping download listhbas hbaattributes targetmapping download
  $ lay_standin && on hbaattributes1 'sleep 9 >/dev/null 2>&1 & echo $! >cli/pid'
  $ flock hbacmd "$CNATOOL_STANDIN" --conpath blade --simulate -v 0; quiet $FLASH_FM; flock -n hbacmd kill "$(cat cli/pid)"
  => 0

What is said is there before a wait, which a signal ends, and before each command.

  $ lay_standin && flock hbacmd timeout -s INT 0.2 "$CNATOOL_STANDIN" --conpath blade -v 3 >out; echo "=> $?"
  => 124
  $ head -n 2 out
  env: Environment variable TMPDIR is not set.
  HBA conditions file: blade/FC_HBA_Conditions.txt
  $ on listhbas1 'echo "the list is made" >&2; exit 3'; real -v 6 >out 2>&1; sed -n '/hbacmd listhbas/,/^Fail/p' out
  ./hbacmd listhbas > blade//local_hba_list.out 
  the list is made
  
  Fail, "hbacmd listhbas" command returned code 768.

A download ignores what could break it off, limits included; the inventory's commands
ignore nothing.

  $ cat >signals <<'EOF'
  > mask=0x$(sed -n 's/SigIgn:.*\(.\{8\}\)$/\1/p' /proc/$$/status)
  > echo ignored: $(for n in $(seq 31); do [ $((mask >> (n - 1) & 1)) -eq 0 ] || kill -l $n; done) >&2
  > EOF
  $ lay_standin && on hbaattributes1 '. ./signals' && on download1 '. ./signals' && quiet $FLASH_FM
  ignored:
  ignored: HUP INT QUIT PIPE TERM XCPU XFSZ
  => 0
  $ lay_standin && on download1 'head -c 99999 /dev/zero 2>/dev/null' && (ulimit -f 8 && real -v 6 $FLASH_FM >out; echo "=> $?")
  => 10

What is no regular file with one name is no report: it is removed and nothing is written
through it. The trace, which is appended to, is left alone and its command not run.

  $ meets() {
  >     lay_standin && report=blade/VM10250117_0_hba_attributes.out && trace=blade/FWtrace.out && echo precious >secret
  >     "$@" && timeout 9 "$CNATOOL_STANDIN" --conpath blade -v 6 $FLASH_FM >out; status=$?
  >     grep -o -e 'returned code -.*' -e '^Error.*' out; cat secret; return $status
  > }
  $ rows meets <<'EOF'
  > eval 'mkfifo $report && exec 7<>$report' => 0 precious
  > eval 'ln -s ../secret $report' => 0 precious
  > eval 'ln secret $report' => 0 precious
  > eval 'mkdir $report' => 12 returned code -1.\nError: Could not open file *_0_hba_attributes.out\nprecious
  > eval 'mkfifo $trace && exec 7<>$trace' => 10 returned code -1.\nprecious
  > eval 'ln -s ../secret $trace' => 10 returned code -1.\nprecious
  > eval 'ln secret $trace' => 10 returned code -1.\nprecious
  > EOF

A report is emptied before its command runs; where that can't be done, as with the file of a
running program, the report of an earlier run does not count.

  $ lay_standin && echo stale >blade/local_hba_list.out
  $ on listhbas1 'wc -c <blade/local_hba_list.out >&2' && quiet $FLASH_FM
  0
  => 0
  $ mapping=blade/VM10250117_3_target_mapping.out
  $ lay_standin && cp "$(command -v sleep)" $mapping && cat cli/reports/VM20713302_3_target_mapping.out >>$mapping
  $ $mapping 9 & sleep 0.1; real $FM 2>&1 | grep -e Error -e NRB; kill $!
  Error: Could not open file blade//VM10250117_3_target_mapping.out

A read error ends the reading as a file that can't be opened does.

  $ lay_blade && ln -sf /proc/self/mem $conditions && simulated -v 1
  Error: Fatal error!
  [55]
  $ lay_blade && ln -sf /proc/self/mem blade/local_hba_list.out && simulated -v 1 | head -n 1
  Error: Could not open file blade//local_hba_list.out

Nothing in the environment changes what the shell does.

  $ lay_standin && on hbaattributes1 'tr "\0" "\n" </proc/$$/environ | grep -c -e OPTS= -e OPTIND= >&2'
  $ env OPTIND=x SHELLOPTS=noexec BASHOPTS=y "$CNATOOL_STANDIN" --conpath blade --silent $FLASH_FM; echo "=> $?"
  0
  => 0

A terminal is told what the tool waits for, which is wiped; a file never.

  $ watched() { script -qec "'$CNATOOL_STANDIN' --conpath blade $*" /dev/null </dev/null; }
  $ lay_standin && watched $FLASH_FM | tr '\r' '~' >out; head -c 28 out; tr '~' '\n' <out | grep -e '^port 1 ' -e '^down'
  ~adapter list~~            ~port 1 of 11: attributes
  port 1 of 11: target mapping
  download of the firmware, Ctrl-C takes effect at its end
  $ watched --silent; watched -v 0; watched -d 1; real $FLASH_FM 2>&1 | grep -c 'of 11'
  0
  [1]
