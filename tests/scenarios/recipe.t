  $ . "$TESTDIR/setup.sh"

The shell recipe, over the example with storage that is allowed.

  $ sed -n '/^```sh$/,/^```$/p' "$TESTDIR/../../docs/automation.md" | grep -v '^```' >documented
  $ lay() {
  >     lay_standin && sed -i 's/: NRB/: DGC/; s/_SX1/_CX1/' cli/reports/*_target_mapping.out && cp documented recipe
  >     printf '#!/bin/sh\nexec "$CNATOOL_STANDIN" --conpath blade "$@"\n' >tool
  >     printf '#!/bin/sh\nexec "${CNATOOL%%/*}/lscna" --conpath blade "$@"\n' >lscna
  >     chmod +x tool lscna
  > }
  $ recipe() { ADAPTERS=$1 TOOL=./tool LSCNA=./lscna sh recipe >out 2>&1; status=$?; tail -n 1 out; return $status; }

The groups of the statuses of a check, whose words hold "-pci", and of a flash.

  $ ends() { sed -i "2i case \$* in *$1*) $2 ;; esac" tool; }
  $ by_status() { for ends in $2; do lay && ends "$1" "exit $ends" && recipe required >/dev/null; echo "$ends=$?"; done | xargs; }
  $ by_status -pci '1 2 3 4 12 13 15 22 54 55 137'
  1=1 2=1 3=3 4=1 12=3 13=3 15=3 22=3 54=3 55=3 137=3
  $ by_status --flash '0 10 12 13 20 21 137'
  0=3 10=2 12=3 13=3 20=2 21=2 137=3

The last line of the recipe.

  $ edit() { sed -i "$1" recipe; }
  $ rows recipe lay <<'EOF'
  > required => 0 go on: 4 ports judged, 3 images written
  > ends -pci 'exit 4' :: required => 1 storage: status 4, leave this blade out
  > ends -pci 'echo strtoul: >\&2; exit 1' :: required => 3 set-up: status 1, ./lscna shows why
  > # A blade may be without adapters, but not for the flash alone.
  > ends -pci 'exit 13' :: optional => 0 go on: status 13, no adapters
  > ends --flash 'exit 12' :: optional => 3 set-up: status 12, *
  > on download3 'exit 7' :: required => 2 flash: status 10, do not restart, stop the fleet
  > # The check ends with 0, and nobody has judged a port, or one of them.
  > sed -i s/0714/0715/ $conditions :: required => 3 set-up: a port is not judged, or an image is not clear
  > on targetmapping2 'exit 3' :: required => 3 set-up: a port is not judged*
  > # An adapter whose reports can't be taken is left out of the flash alone.
  > on listhbas2 'rm cli/reports/VM10250117_[01]*' :: required => 3 set-up: 2 of 3 images written
  > # What a flash would write is clear beforehand, and all of it is written.
  > touch blade/fm10102-old :: required => 3 set-up: a port is not judged, or an image is not clear
  > edit s/0700/0714/g :: required => 3 set-up: FLASH_PORTS names no flash port
  > edit s/0700/0714/ :: required => 3 set-up: 4 of 2 images written
  > edit 's/11C1 19/11C1,,19/' :: required => 0 go on: 4 ports judged, 3 images written
  > on download2 'rm blade/*FX/*.grp' :: required => 3 set-up: 2 of 3 images written
  > EOF
