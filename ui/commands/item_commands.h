// Add, Edit and Remove for the expected items and for the separately scheduled services.
#pragma once

namespace tessaline {

void AddLine();
void EditLine();
void RemoveLine();

void AddSeparateItem();
void EditSelectedSeparateItem();
void RemoveSeparateItem();

}  // namespace tessaline
