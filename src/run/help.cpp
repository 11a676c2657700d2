#include "run/help.h"

#include "run/base/diagnostics.h"
#include "run/base/return_codes.h"

#include <iterator>

namespace {

// The version, field by field, from the build.
constexpr int version[] = {CNATOOL_VERSION};
static_assert(std::size(version) == 4);

constexpr char versionMessageBuild[] = "%d.%d.%d.%d\n";
constexpr char ToolInfoMessageBuild[] = "\n%s version %d.%d.%d.%d\n";

// The texts of the help; each takes the program name. They hold real tabs.
constexpr char helpMessage_1[] = R"help(
USAGE:	 %s [ options ]

Options

--ctrl-wide-identical  | --ctrl-vendor-wide-identical | --check-for-valid-subsystem

-v (1 ... 6 ) | -d (1 ... 6 )

-? | --help (-h)| --show-return-codes (-sr) | --version.



-pci-id "vendor-id:device-id[:subvendor-id:subdevice-id],[vendor-id:device-id[:...]]"
 <hex-value:hex-value[:hex-value[:hex-value]], ...>; (ex. "19A2:0710,19A2:0714").

--ctrl-wide-identical
   check, whether per controller only identical storage-sub-systems are attached.
   (ex. only NRB Marlovan_SX1 systems are attached?).
--ctrl-vendor-wide-identical
   check, whether all members of a controller-family are attached to identical
   storage-sub-systems (ex. all Emulex controller are attached to DGC Marlovan_CX1 systems?).
--check-for-valid-subsystem
   check, whether valid subsystems are attached.
   default (only if option --flash is not set).

--qmr-mode
   program exits with return-code 0 (OK) instead of return-code 13
   (No FC-controller installed).

--silent
   no output-data will be logged or printed (especially in combination with option -v or -d).

--conpath <path>
   path of directory in which FC_HBA_Conditions.txt is diposited.

--flash			flash controller.

--show-return-codes	show return-code list.

--version		show version of this program.

--help			show help message.

-?	show help message.

-v (1,...,6)	verbose-level (min, 1 to max, 6).

-d (1,...,6)	debug-level (min, 1 to max, 6; output can be found in Merlie_DLL.log).

)help";

constexpr char helpMessage_2[] = R"help(Examples:

1) %s -v 1 -pci-id "19A2:0700,19A2:0710:1C3E:11C1" -check-for-valid-subsystem

At least a pair of vendor-id and device-id must be given.
Also a pair of subvendor-id and subdevice-id can be added.
Each group of PCI-IDs represents a distinct PCI controller.
Different PIC-ID groups must be comma separated.

Checks, whether valid and supported storage-sub-systems are attached.


)help";

constexpr char helpMessage_3[] =
    R"help(2) %s -v 6 -pci-id "19A2:0714"  -ctrl-vendor-wide-identical

Checks, whether all Emulex FCoE controller are attached to valid, supported and
identical storage-sub-systems.


)help";

} // namespace

void print_version() {
    message(1, versionMessageBuild, version[0], version[1], version[2], version[3]);
}

void print_tool_information(const char* program) {
    message(1, ToolInfoMessageBuild, program, version[0], version[1], version[2], version[3]);
}

void print_help(const char* program) {
    print_tool_information(program);
    message(1, helpMessage_1, program);
    message(1, helpMessage_2, program);
    message(1, helpMessage_3, program);
}

void print_return_codes() {
    message(1, "\nList of possible return codes\n%s", returnMessage().c_str());
}
