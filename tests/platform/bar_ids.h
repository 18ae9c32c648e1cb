#ifndef QUORIN_TESTS_BAR_IDS_H
#define QUORIN_TESTS_BAR_IDS_H

// The ids of the bars, menus and pictures in bars.rc. Read by the resource compiler as well as by C++.

#define BAR_ENGLISH 501
#define BAR_JAPANESE 502
#define BAR_EMPTY 503
#define BAR_TRUNCATED 504
#define BAR_MISSING 599
#define BAR_PICTURES 510

#define BUTTON_FILE 100
#define BUTTON_VIEW 200
#define BUTTON_OPTION 300

#define ITEM_OPEN 601
#define ITEM_DELETE 602
#define ITEM_LARGE 611
#define ITEM_SMALL 612
#define ITEM_CASE 621

#define DIALOG_PLAIN 520
#define EDIT_FIRST 801
#define EDIT_SECOND 802

#define TEXT_FILE_ENGLISH 701
#define TEXT_VIEW_ENGLISH 702
#define TEXT_OPTION_ENGLISH 703
#define TEXT_FILE_JAPANESE 711
#define TEXT_VIEW_JAPANESE 712
#define TEXT_OPTION_JAPANESE 713

#endif
