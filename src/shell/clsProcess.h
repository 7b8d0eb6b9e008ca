// The facts of a program file: what its version resource says of it and when it was created.
#pragma once

#include <array>
#include <string>

#include "platform/Machine.h"

namespace velkarix {

class clsProcess {
  public:
    explicit clsProcess(const Machine& machine) : machine_(machine) {}

    // Reads the facts of the file at a full path in place of those of the file before. What can't
    // be read is empty.
    void GetFileDescription(const std::string& path);
    // Rows 0 to 11: ProductName, ProductVersion, FileDescription, FileVersion, InternalName,
    // OriginalFilename, Comments, CompanyName, LegalCopyright, LegalTrademarks, PrivateBuild,
    // SpecialBuild. Row 12: the creation date as "mm/dd/yyyy". Another row is a fault of the
    // caller and ends the program (std::out_of_range).
    const std::string& getItem(int row) const;

  private:
    void ReadVersion(const std::string& path);
    std::string CreationDate(const std::string& path);

    Machine machine_;
    std::array<std::string, 13> values_;
};

}  // namespace velkarix
