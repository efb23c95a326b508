#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane::designer {

/// A name of the menu document as a label: "workingDir" is "Working dir".
std::wstring LabelOf(std::string_view name);

/// Marks in each label a letter with "&" that no label before it has taken and that is none of
/// `taken`, as long as there is one.
void AddAccessKeys(std::vector<std::wstring>& labels, std::wstring taken = {});

}  // namespace orvane::designer
