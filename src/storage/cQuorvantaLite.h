// The data file: read once when the program starts, written once when it ends.
#pragma once

namespace quorvanta {

class cQuorvantaLite {
public:
    // Writes the shared variables as a whole file of 33 lines. An empty gstrBankrollDate becomes
    // today's date.
    void WriteLottoFile();

    // Fills the shared variables from the file. What the file lacks keeps its value; a file that
    // doesn't exist changes nothing.
    void ReadLottoFile();
};

} // namespace quorvanta
