#pragma once

#include <string>
#include <vector>

// The three item files as the work order lists them: each record's description, trimmed, and
// its price as the list shows it. A file's record count is held in one byte, so a file of
// more than 255 records stops with the run-time failure "Overflow" before anything is listed.

struct ItemRow {
    std::string description;
    std::string price;
};

// UpdatedInventory.txt: the price in the platform's currency form.
std::vector<ItemRow> ReadInventoryItems();
// Services.txt: the price text as it stands, trimmed.
std::vector<ItemRow> ReadServices();
// CustomItems.txt: the price in the platform's currency form.
std::vector<ItemRow> ReadCustomItems();
