  $ . "$TESTDIR/setup.sh"

What a report says never starts anything and never leaves the directory.

  $ hostile() {
  >     lay_standin
  >     sed -i "/^Serial No/s%: .*%: $1%; /^Port WWN/s%: .*%: $1%; /^Permanent/s%: .*%: $1%" cli/reports/local_hba_list.out
  >     echo "[$1]"
  >     real -v 6 -pci-id 19A2:0714 >out 2>/dev/null; echo "=> $?"
  >     grep -A1 -m 2 hbaattributes out
  >     sort -u cli/calls.log | head -n 3
  >     find . ! -path './cli*' ! -path './blade/*' -type f | sort
  >     ls blade | grep -v -e ^FC_HBA -e 10102 -e local_hba | head -n 2
  > }
  $ hostile 'a b'
  [a b]
  => 12
  \t\t./hbacmd hbaattributes 'a b' > 'blade//a b_2_hba_attributes.out' (esc)
  
  \t\tSuccess, "hbacmd hbaattributes a b" command returned code 0. (esc)
  
  hbaattributes [a b]
  listhbas
  targetmapping [a b]
  ./hbacmd
  ./out
  a b_0_hba_attributes.out
  a b_0_target_mapping.out
  $ hostile '$(touch pwned)'
  [$(touch pwned)]
  => 12
  \t\t./hbacmd hbaattributes '$(touch pwned)' > 'blade//$(touch pwned)_2_hba_attributes.out' (esc)
  
  \t\tSuccess, "hbacmd hbaattributes $(touch pwned)" command returned code 0. (esc)
  
  hbaattributes [$(touch pwned)]
  listhbas
  targetmapping [$(touch pwned)]
  ./hbacmd
  ./out
  $(touch pwned)_0_hba_attributes.out
  $(touch pwned)_0_target_mapping.out
  $ hostile ';touch pwned;'
  [;touch pwned;]
  => 12
  \t\t./hbacmd hbaattributes ';touch pwned;' > 'blade//;touch pwned;_2_hba_attributes.out' (esc)
  
  \t\tSuccess, "hbacmd hbaattributes ;touch pwned;" command returned code 0. (esc)
  
  hbaattributes [;touch pwned;]
  listhbas
  targetmapping [;touch pwned;]
  ./hbacmd
  ./out
  ;touch pwned;_0_hba_attributes.out
  ;touch pwned;_0_target_mapping.out
  $ hostile '`touch pwned`'
  [`touch pwned`]
  => 12
  \t\t./hbacmd hbaattributes '`touch pwned`' > 'blade//`touch pwned`_2_hba_attributes.out' (esc)
  
  \t\tSuccess, "hbacmd hbaattributes `touch pwned`" command returned code 0. (esc)
  
  hbaattributes [`touch pwned`]
  listhbas
  targetmapping [`touch pwned`]
  ./hbacmd
  ./out
  `touch pwned`_0_hba_attributes.out
  `touch pwned`_0_target_mapping.out
  $ hostile "it's|touch pwned"
  [it's|touch pwned]
  => 12
  \t\t./hbacmd hbaattributes 'it'\\''s|touch pwned' > 'blade//it'\\''s|touch pwned_2_hba_attributes.out' (esc)
  
  \t\tSuccess, "hbacmd hbaattributes it's|touch pwned" command returned code 0. (esc)
  
  hbaattributes [it's|touch pwned]
  listhbas
  targetmapping [it's|touch pwned]
  ./hbacmd
  ./out
  it's|touch pwned_0_hba_attributes.out
  it's|touch pwned_0_target_mapping.out
  $ hostile '../pwned'
  [../pwned]
  => 12
  \t\t./hbacmd hbaattributes ../pwned > blade//../pwned_2_hba_attributes.out (esc)
  
  \t\tFail, "hbacmd hbaattributes ../pwned" command returned code -1. (esc)
  Error: Could not open file blade//../pwned_2_hba_attributes.out
  listhbas
  ./hbacmd
  ./out
  $ hostile 'n/a'
  [n/a]
  => 12
  \t\t./hbacmd hbaattributes n/a > blade//n/a_2_hba_attributes.out (esc)
  
  \t\tFail, "hbacmd hbaattributes n/a" command returned code 512. (esc)
  \t\tNo serial number => SKIP! (esc)
  listhbas
  ./hbacmd
  ./out
  $ hostile 'n/a/../../pwned'
  [n/a/../../pwned]
  => 12
  \t\t./hbacmd hbaattributes n/a/../../pwned > blade//n/a/../../pwned_2_hba_attributes.out (esc)
  
  \t\tFail, "hbacmd hbaattributes n/a/../../pwned" command returned code -1. (esc)
  \t\tNo serial number => SKIP! (esc)
  listhbas
  ./hbacmd
  ./out
  $ hostile '"*"'
  ["*"]
  => 12
  \t\t./hbacmd hbaattributes '*' > 'blade//*_2_hba_attributes.out' (esc)
  
  \t\tSuccess, "hbacmd hbaattributes *" command returned code 0. (esc)
  
  hbaattributes [*]
  listhbas
  targetmapping [*]
  ./hbacmd
  ./out
  *_0_hba_attributes.out
  *_0_target_mapping.out
  $ hostile ''
  []
  => 12
  \t\t./hbacmd hbaattributes  > blade//_2_hba_attributes.out (esc)
  
  \t\tSuccess, "hbacmd hbaattributes " command returned code 0. (esc)
  
  hbaattributes
  listhbas
  targetmapping
  ./hbacmd
  ./out
  _0_hba_attributes.out
  _0_target_mapping.out

The same for a working directory with a blank in its name.

  $ lay_standin && mv blade 'a $(blade)'
  $ "$CNATOOL_STANDIN" --conpath 'a $(blade)' -v 6 -pci-id 19A2:0714:1C3E:11C1 | grep -m 2 hbacmd
  ./hbacmd listhbas > 'a $(blade)//local_hba_list.out' 
  Success, "hbacmd listhbas" command returned code 0.
  $ head -n 2 cli/calls.log
  listhbas
  hbaattributes [10:00:00:00:c9:b2:00:11]

A path that is too long is traced, but neither run nor opened.

  $ lay_standin && d=$(printf %0240d 0) && mkdir -p $d/$d/$d/$d && mv blade/* $d/$d/$d/$d
  $ "$CNATOOL_STANDIN" --conpath $d/$d/$d/$d -v 6 | grep -o -e 'Fail.*' -e 'Error: Could not open'
  Fail, "hbacmd hbaattributes 10:00:00:00:c9:b2:00:11" command returned code -1.
  Error: Could not open
  $ cat cli/calls.log
  listhbas
