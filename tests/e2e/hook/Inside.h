// What the driver and its hook library agree on: questions that only code inside the program under
// test can answer, and the memory for the answer.
#pragma once

namespace velkarix::e2e {

// Registered messages, sent to a window of the program.
inline constexpr const char* ReadMenuQuestion = "Velkarix.Test.ReadMenu";
inline constexpr const char* CountUserObjectsQuestion = "Velkarix.Test.CountUserObjects";
inline constexpr const char* CutTextsQuestion = "Velkarix.Test.CutTexts";

// Sets what the user sets in the control panel, so that the program hears of it, and gives what it
// was before. A colour of the system: its index in the upper 8 bits of the number, the colour in
// the lower 24. The height of the letters in dialogs, in pixels.
inline constexpr const char* SetColourQuestion = "Velkarix.Test.SetColour";
inline constexpr const char* SetFontQuestion = "Velkarix.Test.SetFont";

// With a number: see EndAtChange.h. The answer is empty where it can't be done.
inline constexpr const char* EndAtChangeQuestion = "Velkarix.Test.EndAtChange";
inline constexpr unsigned EndedAtChange = 77;  // the exit code of a program that was ended so

// Whether PlantedName can be loaded by its bare name; see plant/Plant.cpp.
inline constexpr const char* LoadPlantedQuestion = "Velkarix.Test.LoadPlanted";
inline constexpr const char* PlantedName = "VelkarixPlant.dll";
inline constexpr const char* IsLoaded = "loaded";
inline constexpr const char* IsNotFound = "not found";

// How many pieces of memory the program itself has, and their bytes; then those of all libraries.
inline constexpr const char* CountMemoryQuestion = "Velkarix.Test.CountMemory";

// From now on the dialog that asks where to save is answered by itself, with the file SavedName of
// the current folder. The answer is empty where that can't be done.
inline constexpr const char* SkipSaveDialogQuestion = "Velkarix.Test.SkipSaveDialog";
inline constexpr const char* SavedName = "Saved.txt";

inline constexpr const char* AnswerMemoryName = "Velkarix.Test.Answer";
inline constexpr int AnswerMemorySize = 16384;
inline constexpr const char* PopupMenuClass = "#32768";

}  // namespace velkarix::e2e

// An item of a menu: number, type, state, left, top, right, bottom; the caption follows, then a
// line feed.
#define MenuLineFormat "%u %u %u %ld %ld %ld %ld "
