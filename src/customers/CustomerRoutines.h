#pragma once

#include <cstdint>
#include <string>

#include "platform/RecordLayout.h"

class frmCustomer;

// The account on screen of frmCustomer, and the lists built from the account book.

// Rebuilds cboAccounts (a business by its name, an individual as "Last, First", each with
// its record number as item data) and the city list from the file.
void LoadAccountLists(frmCustomer& form);
// Shows CurrentRecord, and loads its auxiliary data and its two billing records.
void DisplayCustomer(frmCustomer& form);
// Checks the name, then writes CurrentRecord and its billing records; SaveAccepted tells
// whether it passed.
void SaveCustomer(frmCustomer& form);
// Saves the account on screen when it has a name, then starts a new one at the end of the
// file. False when the save was refused and nothing new was started.
bool NewCustomer(frmCustomer& form);
// "Business" enables the name box; anything else means "Individual" and enables the parts.
void SetAccountType(frmCustomer& form, const std::string& type);
// Empties the account's boxes; the cell number stays, as the screen always leaves it.
void ClearCustomerBoxes(frmCustomer& form);
// The contractor's own city, zip and state in a new account.
void PrefillFromBusiness(frmCustomer& form);
// True when another record than CurrentRecord carries this account number.
bool AccountNoTaken(frmCustomer& form, const std::string& accountNo);
// Removes CurrentRecord from the three record files and shows the first account.
void DeleteCustomer(frmCustomer& form);
// Makes the six folders of an account's auxiliary data that are missing.
void MakeAuxFolders(const std::string& accountNo);

// Names of an account as the lists show it.
std::string ListName(const platform::Record& record);   // "Last, First" for an individual
std::string FoundName(const platform::Record& record);  // "Title First Last" for an individual
// The name in a row of the search results, where the parts of an individual's name are joined
// by blanks even when one is empty.
std::string FoundRowName(const platform::Record& record);
bool IsBusiness(const platform::Record& record);
