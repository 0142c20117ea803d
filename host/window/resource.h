// Numbers of the program's resources and commands.
#pragma once

#define IDR_MENU 1
#define IDR_ACCELERATORS 2

#define IDM_TRIGGER_ACTIONS 100
#define IDM_DATABASE 101
#define IDM_CLEAR 102
#define IDM_EXIT 103
#define IDM_PERMISSION 110
#define IDM_NEWER_HARDWARE 111
#define IDM_CUSTOMISED 112
#define IDM_ABOUT 120

// A help page is a resource of type HELPPAGE under its topic's number, and the command that shows
// it is the topic added to this.
#define IDM_HELP 1000
#define HELP_ACTION_TAB 53
#define HELP_LOCATION_PICKER 178
#define HELP_SUMMARY 217
#define HELP_TRIGGER_TAB 218
