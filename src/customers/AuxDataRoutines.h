#pragma once

#include <string>

class frmCustomer;

// Six free text boxes for every account, under six headings chosen once for all accounts.
// AuxHeadings.txt holds the headings; AuxFiles\<account>\AuxFile<i>\Data.txt box i.

constexpr const char* kAuxHeadingsFile = "/AuxHeadings.txt";

// The six headings from the file, when there is one.
void LoadAuxHeadings(frmCustomer& form);
void SaveAuxHeadings(frmCustomer& form);
// Writes the six boxes for the account number on screen.
void SaveAuxData(frmCustomer& form);
// Reads the boxes of the account on screen, value by value; nothing when they are retained.
void LoadAuxData(frmCustomer& form);
void ClearAuxBoxes(frmCustomer& form);
// The account's name above the boxes.
void ShowAuxTitle(frmCustomer& form);

// Data.txt of box i of an account.
std::string AuxDataPath(const std::string& accountNo, int box);
