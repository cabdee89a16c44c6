#pragma once

#include <cstdint>
#include <string>

// Project numbers: "Pj" + the day of the year + "-" + the running number of that day.
// `PjCounter.txt` keeps the day and the number the next project will get.

constexpr const char* kPjCounterFile = "\\PjCounter.txt";

extern std::string PjDay;     // day of the year, as text
extern std::int16_t PjCount;  // running number of that day
extern std::string CurrentProjectNo;

// Today's next number from the counter file; a counter of another day starts again at 1.
// Saves the counter, which thus changes only its day.
void MakeProjectNo();
// One number further, after a project was saved.
void NextProjectNo();
// Writes the day and count to the counter file, or to `path` where the caller puts it in
// place itself.
void SavePjCounter(const std::string& path = kPjCounterFile);
// The counters as a new process has them.
void ResetProjectNumbers();
