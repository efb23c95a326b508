#pragma once

// Read by the resource compiler too: nothing but definitions.

#define IDD_COPY_TO 201
#define IDC_DESTINATION 1001
#define IDC_BROWSE 1002
#define IDC_RECENT 1003
#define IDC_SLOT 1010  // the first of SLOT_COUNT in a row
#define SLOT_COUNT 7

#define IDD_PROGRESS 202
#define IDC_AREA 1101
#define IDC_FOLDER 1102
#define IDC_COUNT 1103
#define IDC_BAR 1104
