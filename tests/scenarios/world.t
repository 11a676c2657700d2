What the world around a run does to it.

  $ . "$TESTDIR/setup.sh"
  $ flash='--flash -pci-id 19A2:0700:1C3E:11C1'
  $ quiet() { real --silent "$@"; echo "=> $?"; }

Runs that start the CLI take turns, from their first command to their end. A
signal ends the wait; a simulated run does not wait, and a daemon that the CLI
leaves behind keeps nobody waiting.

  $ lay_standin && echo 'sleep 0.3' >cli/call18
  $ quiet $flash & sleep 0.1; quiet $flash; wait
  => 0
  => 0
  $ cut -d ' ' -f 1 cli/calls.log | uniq | xargs
  listhbas hbaattributes targetmapping download listhbas hbaattributes targetmapping download
  $ flock hbacmd timeout -s INT 0.2 "$CNATOOL_STANDIN" --conpath blade; echo "=> $?"
  => 124
  $ lay_standin && echo 'sleep 9 >/dev/null 2>&1 & echo $! >cli/pid' >cli/call2
  $ flock hbacmd "$CNATOOL_STANDIN" --conpath blade --simulate; quiet $flash; flock -n hbacmd kill "$(cat cli/pid)"
  Error: Could not open file blade//local_hba_list.out
  
  No Blade Engine was found in this system.
  
  => 0

A download ignores what could break it off, limits included; the inventory's
commands ignore nothing.

  $ lay_standin && ignored='grep SigIgn /proc/$$/status | tail -c 8 >&2'
  $ echo "$ignored" >cli/call2 && echo "$ignored" >cli/call18 && quiet $flash
  0000000
  1805007
  => 0
  $ lay_standin && echo 'head -c 99999 /dev/zero 2>/dev/null' >cli/call18 && (ulimit -f 8 && real -v 6 $flash >out; echo "=> $?")
  => 10

Nothing is written to what is no regular file with one name: in a report's place it is
removed, in the trace's the command is not run.

  $ meets() {
  >     for put in mkfifo 'ln -s ../secret' 'ln secret'; do
  >         lay_standin && echo precious >secret && $put "blade/$1"
  >         timeout 9 "$CNATOOL_STANDIN" --conpath blade -v 6 $flash >out; echo "=> $?"
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
  $ lay_standin && mkdir blade/FWtrace.out && real $flash 2>&1 | grep -o 'returned code.*'
  returned code -1.

A report is emptied before its command runs.

  $ lay_standin && touch blade/local_hba_list.out && chmod 666 blade/local_hba_list.out
  $ echo 'wc -c <blade/local_hba_list.out >&2; exec cat cli/reports/local_hba_list.out' >cli/call1
  $ echo stale >blade/local_hba_list.out && (umask 0 && quiet $flash) && find blade -type f -perm /022
  0
  => 0
  blade/local_hba_list.out

What can't be read to its end counts for nothing.

  $ spoilt() { lay_blade && ln -sf /proc/self/mem "blade/$1" && simulated -v 1 $flash; echo "=> $?"; }
  $ spoilt FC_HBA_Conditions.txt
  Error: Fatal error!
  => 55
  $ spoilt local_hba_list.out
  Error: Could not open file blade//local_hba_list.out
  
  No Blade Engine was found in this system.
  
  => 13

Nothing in the environment changes what the shell does.

  $ lay_standin && echo 'tr "\0" "\n" </proc/$$/environ | grep -c -e OPTS= -e OPTIND= >&2' >cli/call2
  $ env OPTIND=x SHELLOPTS=noexec BASHOPTS=y "$CNATOOL_STANDIN" --conpath blade --silent $flash; echo "=> $?"
  0
  => 0

A terminal is told what the tool waits for, which is wiped; a file never.

  $ watched() { script -qec "'$CNATOOL_STANDIN' --conpath blade $*" /dev/null; }
  $ lay_standin && watched $flash | tr '\r' '~' >out; head -c 28 out; tr '~' '\n' <out | grep -e '^port 5' -e '^down'
  ~adapter list~~            ~port 5 of 11: attributes
  port 5 of 11: target mapping
  download of the firmware, Ctrl-C takes effect at its end
  $ watched --silent; watched -v 0; watched -d 1; real $flash 2>&1 | grep -c 'of 11'
  0
  [1]
