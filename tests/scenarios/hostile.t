  $ . "$TESTDIR/setup.sh"

What a report says starts nothing and leads nowhere outside of the directory: the first
port's serial number and its name for the CLI, its function, the command, the CLI's words,
the files beside it.

  $ hostile() {
  >     lay_standin && list=cli/reports/local_hba_list.out
  >     sed -i "/^Serial No/s%: .*%: $1%; /^Port WWN/s%: .*%: $1%; /^PCI F/s%: 2%: ${2-2}%" $list
  >     real -v 6 $BOTH 2>/dev/null >out; status=$?
  >     sed -n '/hba. *$/d; s/^\t\t//; /hbacmd hbaattributes/p' out | head -n 2; sed -n 2p cli/calls.log
  >     find . ! -path './cli*' ! -path './blade/*' -type f | sort | xargs; return $status
  > }
  $ rows hostile <<'EOF'
  > 'a b' => 12
  > | ./hbacmd hbaattributes 'a b' > 'blade//a b_2_hba_attributes.out'
  > | Success, "hbacmd hbaattributes a b" command returned code 0.\nhbaattributes [a b]\n./hbacmd ./out
  > # What a shell would run, or expand.
  > '$(touch pwned)' => 12 ./hbacmd hbaattributes '$(touch pwned)' > *\n*\nhbaattributes [$(touch pwned)]\n./hbacmd ./out
  > "it's|touch x" => 12 ./hbacmd hbaattributes 'it'\''s|touch x' > *\n*\nhbaattributes [it's|touch x]\n./hbacmd ./out
  > 'a*' => 12 ./hbacmd hbaattributes 'a*' > 'blade//a*'\nSuccess*\nhbaattributes [a*]\n./hbacmd ./out
  > '~' => 12 ./hbacmd hbaattributes '~' > 'blade//~_2*'\nSuccess*\nhbaattributes [~]\n./hbacmd ./out
  > # An empty name is no word.
  > '' => 12 ./hbacmd hbaattributes  > blade//_2*\nSuccess*\nhbaattributes\n./hbacmd ./out
  > # A file outside of the directory is refused, without a serial number ("n/a") never read.
  > ../pwned => 12 *hbaattributes ../pwned > blade//../pwned_2*\nFail*code -1.\n./hbacmd ./out
  > x ../y => 12 *hbaattributes x > blade//x_../_hba*\nFail*code -1.\n./hbacmd ./out
  > n/a => 12 *hbaattributes n/a > blade//n/a_2*\nFail*code 512.\n./hbacmd ./out
  > n/a/../../pwned => 12 *\nFail*code -1.\n./hbacmd ./out
  > EOF

The same for a directory with a blank in its name; a path that is too long is
traced, but neither run nor opened.

  $ in_directory() {
  >     lay_standin && mkdir -p "$1" && mv blade/* "$1"
  >     "$CNATOOL_STANDIN" --conpath "$1" -v 6 | grep -e "$2"; sed -n 2p cli/calls.log
  > }
  $ d=$(printf %0240d 0)
  $ rows in_directory <<'EOF'
  > 'a $(blade)' hbacmd.lis => 0
  > | ./hbacmd listhbas > 'a $(blade)//local_hba_list.out' 
  > | Success, "hbacmd listhbas" command returned code 0.
  > | hbaattributes [10:00:00:00:c9:b2:00:11]
  > $d/$d/$d/$d code.-1 => 0 \t\tFail, "hbacmd hbaattributes 10:00:00:00:c9:b2:00:11" command returned code -1.
  > EOF

Nobody reads what the tool says, or waits for its children: the run goes on and ends with
its status.

  $ lay_blade && rows simulated <<'EOF'
  > -v 6 $FX >/dev/full => 4
  > -v 6 $FX <&- >&- 2>&- => 4
  > EOF
  $ lay_standin && env --ignore-signal=CHLD "$CNATOOL_STANDIN" --conpath blade $FLASH_BOTH >&-
  $ grep -c download cli/calls.log
  3

A debug run is silent on the screen and writes its log anew for its owner alone, up to an
early end; without a level there is none, and nothing is written through a link or into
somebody else's file.

  $ lay_blade && log=blade/Merlie_DLL.log && echo old >$log && chmod 644 $log && rm blade/local_hba_list.out
  $ simulated -d 1; stat -c %a $log; cat $log
  600
  Error: Could not open file blade//local_hba_list.out
  
  No Blade Engine was found in this system.
  
  $ rm $log && simulated -d 0; simulated -d 6 --silent; simulated -v 6 >/dev/null; ls blade | grep -c Merlie
  0
  [1]
  $ echo precious >target && for make in 'ln -s ../target' 'ln target' mkfifo; do $make $log && simulated -d 6; rm $log; done; cat target
  precious
