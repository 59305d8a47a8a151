// The program's resources. The resource compiler reads this file too.
#pragma once

#define IDI_PROGRAM 101
#define IDB_BANNER 102
