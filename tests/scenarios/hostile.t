  $ . "$TESTDIR/setup.sh" && ready() { lay_standin; }

What a report says starts nothing and leads nowhere outside of the directory.

  $ hostile() {
  >     lay_standin
  >     sed -i "/^Serial No/s%: .*%: $1%; /^Port WWN/s%: .*%: $1%; /^PCI F/s%: 2%: ${2-2}%" cli/reports/local_hba_list.out
  >     real -v 6 -pci-id 19A2:0714 2>/dev/null >out; status=$?
  >     sed -n '/hba. *$/d; /hbacmd hbaattributes/p' out | head -n 2
  >     sed -n 2p cli/calls.log; find . ! -path './cli*' ! -path './blade/*' -type f | sort | xargs; return $status
  > }
  $ rows hostile <<'EOF'
  > 'a b' => 12 \t\t./hbacmd hbaattributes 'a b' > 'blade//a b_2_hba_attributes.out'\n\t\tSuccess, "hbacmd hbaattributes a b" command returned code 0.\nhbaattributes [[]a b]\n./hbacmd ./out\n
  > '$(touch pwned)' => 12 \t\t./hbacmd hbaattributes '$(touch pwned)' > 'blade//$(t*\nhba*[[]$(*]\n./hbacmd ./out\n
  > "it's|touch pwned" => 12 *'it'\\\\''s|touch pwned' > 'blade//it'\\\\''s*[[]it's|touch pwned]\n./hbacmd ./out\n
  > '' => 12 *hbaattributes  > blade//_2*\nhbaattributes\n./hbacmd ./out\n
  > ../pwned => 12 *hbaattributes ../pwned > blade//../pwned_2*code -1.\n./hbacmd ./out\n
  > x ../y => 12 *hbaattributes x > blade//x_../_hba*code -1.\n./hbacmd ./out\n
  > n/a => 12 *code 512.\n./hbacmd ./out\n
  > n/a/../../pwned => 12 *code -1.\n./hbacmd ./out\n
  > EOF

The same for a directory with a blank in its name; a path that is too long is
traced, but neither run nor opened.

  $ in_directory() { lay_standin && mkdir -p "$1" && mv blade/* "$1" && "$CNATOOL_STANDIN" --conpath "$1" -v 6 | grep -e "${2-hbacmd lis}"; sed -n 2p cli/calls.log; }
  $ in_directory 'a $(blade)'
  ./hbacmd listhbas > 'a $(blade)//local_hba_list.out' 
  Success, "hbacmd listhbas" command returned code 0.
  hbaattributes [10:00:00:00:c9:b2:00:11]
  $ d=$(printf %0240d 0) && in_directory $d/$d/$d/$d code.-1 | cut -c 1-30
  \t\tFail, "hbacmd hbaattributes  (esc)

Nobody reads what the tool says, or waits for its children: the run goes on and
ends with its status.

  $ lay_blade && invalid='-v 6 -pci-id 19A2:0714:1C3E:11C2'
  $ simulated $invalid >&-
  [4]
  $ simulated $invalid >/dev/full
  [4]
  $ simulated $invalid <&- >&- 2>&-
  [4]
  $ { simulated $invalid; echo "=> $?" >&2; } | true
  => 4
  $ lay_standin && (trap '' CHLD; real --flash -pci-id 19A2:0700 >&-) && grep -c download cli/calls.log
  3

A debug run is silent on the screen and writes its log anew for its owner alone, up
to an early end; without a level there is none, and nothing is written through a
link or into somebody else's file.

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
