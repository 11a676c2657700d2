  $ . "$TESTDIR/setup.sh"

The storage of one port against a conditions record with the subsystems given.

  $ judge() {
  >     lay_blade
  >     echo "Emulex|CNA-10102-FX|19A2|0714|1C3E|11C2|x|x|x|x|x|x|$1" >blade/FC_HBA_Conditions.txt
  >     echo "[$1]" && : >blade/VM20713302_3_target_mapping.out
  >     status=0; simulated -v 1 -pci-id 19A2:0714:1C3E:11C2 >out || status=$?
  >     sed -n '/Attached storage/,/^$/p' out | grep -v -e '^	*\(NRB\|7.12\|Marlovan_SX1\)$' -e Attached.storage -e '^$'
  >     echo "=> $status"
  > }
  $ while IFS= read -r subsystems; do judge "$subsystems"; done <<'EOF'
  > NRB| |x
  > NRB|Marlovan_SX|x
  > NRB|Marlovan_SX10|x
  > nrb|Marlovan_SX1|x
  > NRB|A,Marlovan_SX1|x
  > NRB|Marlovan_SX1,A|x
  > NRB|A,,B|x
  > NRB|A,B,|x
  > NRB|X|x|NRB|Marlovan_S|x
  > NRB| |x|NRB|Y,Z|x|NRB|Marlovan|x
  > NRB|,|x|NRB|A|x
  > |Marlovan|x|DGC| |x
  > EOF
  [NRB| |x]
  => 0
  [NRB|Marlovan_SX|x]
  \t\tCheck subsystem: 'Marlovan_SX' Attached subsystem: 'Marlovan_SX1'\t\t\t--> OK (esc)
  \tAlready identified reference subsystems: Marlovan_SX  Subsystem group: Marlovan_SX (esc)
  \tReference subsystem Marlovan_SX found in Group: Marlovan_SX (esc)
  \t\t\tAll reference subsystems appear in the same group: Marlovan_SX (esc)
  => 0
  [NRB|Marlovan_SX10|x]
  \t\tCheck subsystem: 'Marlovan_SX10' Attached subsystem: 'Marlovan_SX1'\t\t\t--> Invalid subsystem! (esc)
  => 4
  [nrb|Marlovan_SX1|x]
  => 4
  [NRB|A,Marlovan_SX1|x]
  \t\t\tCheck subsystem: 'A' Attached subsystem: 'Marlovan_SX1'\t\t\t--> Invalid subsystem! (esc)
  \t\tCheck subsystem: 'Marlovan_SX1' Attached subsystem: 'Marlovan_SX1'\t\t\t--> OK (esc)
  \tAlready identified reference subsystems: Marlovan_SX1  Subsystem group: A,Marlovan_SX1 (esc)
  \tReference subsystem Marlovan_SX1 found in Group: A,Marlovan_SX1 (esc)
  \t\t\tAll reference subsystems appear in the same group: A,Marlovan_SX1 (esc)
  => 0
  [NRB|Marlovan_SX1,A|x]
  \t\t\tCheck subsystem: 'Marlovan_SX1' Attached subsystem: 'Marlovan_SX1'\t\t\t--> OK (esc)
  \tAlready identified reference subsystems: Marlovan_SX1  Subsystem group: Marlovan_SX1,A (esc)
  \tReference subsystem Marlovan_SX1 found in Group: Marlovan_SX1,A (esc)
  \t\t\tAll reference subsystems appear in the same group: Marlovan_SX1,A (esc)
  => 0
  [NRB|A,,B|x]
  \t\t\tCheck subsystem: 'A' Attached subsystem: 'Marlovan_SX1'\t\t\t--> Invalid subsystem! (esc)
  \t\t\tCheck subsystem: '' Attached subsystem: 'Marlovan_SX1'\t\t\t--> OK (esc)
  => 0
  [NRB|A,B,|x]
  \t\t\tCheck subsystem: 'A' Attached subsystem: 'Marlovan_SX1'\t\t\t--> Invalid subsystem! (esc)
  \t\t\tCheck subsystem: 'B' Attached subsystem: 'Marlovan_SX1'\t\t\t--> Invalid subsystem! (esc)
  \t\tCheck subsystem: '' Attached subsystem: 'Marlovan_SX1'\t\t\t--> Invalid subsystem! (esc)
  => 4
  [NRB|X|x|NRB|Marlovan_S|x]
  \t\tCheck subsystem: 'X' Attached subsystem: 'Marlovan_SX1'\t\t\t--> Invalid subsystem! (esc)
  \t\tCheck subsystem: 'Marlovan_S' Attached subsystem: 'Marlovan_SX1'\t\t\t--> OK (esc)
  \tAlready identified reference subsystems: Marlovan_S  Subsystem group: Marlovan_S (esc)
  \tReference subsystem Marlovan_S found in Group: Marlovan_S (esc)
  \t\t\tAll reference subsystems appear in the same group: Marlovan_S (esc)
  => 0
  [NRB| |x|NRB|Y,Z|x|NRB|Marlovan|x]
  \t\t\tCheck subsystem: 'Y' Attached subsystem: 'Marlovan_SX1'\t\t\t--> Invalid subsystem! (esc)
  => 0
  [NRB|,|x|NRB|A|x]
  \t\t\tCheck subsystem: '' Attached subsystem: 'Marlovan_SX1'\t\t\t--> OK (esc)
  => 0
  [|Marlovan|x|DGC| |x]
  => 4
