// The tree inside a version resource, read without trusting any length that it claims. Version
// resources come with files of any origin; the system's own look-up believes what they say.
#pragma once

#include <optional>
#include <string>

#include "base/Bytes.h"

namespace velkarix {

// Whether each length in the tree stays inside its surroundings, so that a look-up that trusts
// them can't leave the block. Takes the form of 32-bit programs (UTF-16) and that of 16-bit ones.
bool IsVersionBlockSound(const Bytes& block);

// The data at `subBlock` ("\\" is the root, "\\VarFileInfo\\Translation", ...; names compare
// without case), as many bytes as the resource says that there are, cut where it ends.
// Texts come back as ANSI bytes, one each character, their NUL counted; '?' stands for a character
// beyond Latin-1. Nothing when there is no such part.
std::optional<Bytes> QueryVersionBlock(const Bytes& block, const std::string& subBlock);

}  // namespace velkarix
