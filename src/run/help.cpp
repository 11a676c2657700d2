#include "run/help.h"

#include "run/base/diagnostics.h"

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

constexpr char returnMessage[] = R"codes(
   Valid return codes

   RET_OK                                   0
   RET_NOT_CTRL_WIDE_IDENTICAL              1
   RET_NOT_CTRL_VENDOR_WIDE_IDENTICAL       2
   RET_BAD_CALL                             3
   RET_INVALID_CTRL_SUBSYSTEM_COMBINATION   4
   RET_FLASH_ERROR                         10
   RET_NO_FC_HBA_CONDITIONS_ENTRY          11
   RET_NO_MATCHING_CTRL_FOUND              12
   RET_NO_FC_CTRL_INSTALLED                13
   RET_FC_HBA_CONDITIONS_MISSING           15
   RET_INFOFILE_MISSING                    16
   RET_FW_NOT_AVAILABLE                    20
   RET_SCLI_NOT_INSTALLED                  21
   RET_KERNEL_MODULE_MISSING               22
   RET_MEMALLOC_FAIL                       54
   RET_FATAL_ERROR                         55

)codes";

} // namespace

void print_version(const char* /*program_name*/) {
    message(1, versionMessageBuild, version[0], version[1], version[2], version[3]);
}

void print_tool_information(const char* program_name) {
    message(1, ToolInfoMessageBuild, program_name, version[0], version[1], version[2], version[3]);
}

void print_help(const char* program_name) {
    print_tool_information(program_name);
    message(1, helpMessage_1, program_name);
    message(1, helpMessage_2, program_name);
    message(1, helpMessage_3, program_name);
}

void print_return_codes(const char* /*program_name*/) {
    message(1, "\nList of possible return codes\n%s", returnMessage);
}
