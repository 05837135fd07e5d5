# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# Makes SOURCE, which defines the collection kNAME, of the files that LIST names.
#
# The code that rcc writes registers its files when its static objects are made, and between two
# such sources that order is open. So only the three arrays are taken from it, which need no code.

# The same files make the same library, whenever they were written.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
    set(ENV{SOURCE_DATE_EPOCH} 1)
endif()
execute_process(COMMAND "${RCC}" --format-version 3 "${LIST}"
    OUTPUT_VARIABLE code COMMAND_ERROR_IS_FATAL ANY)
string(FIND "${code}" "#ifdef QT_NAMESPACE" end)
string(SUBSTRING "${code}" 0 ${end} arrays)
file(WRITE "${SOURCE}" "#include \"module/EmbeddedFiles.h\"

${arrays}
namespace Norvane::Kilnjet {

constinit const EmbeddedFiles k${NAME}{qt_resource_struct, qt_resource_name, qt_resource_data};

} // namespace Norvane::Kilnjet
")
