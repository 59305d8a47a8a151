// Open, Patient Lookup and Provider Lookup: what saved estimates hold, brought back into the form.
#pragma once

namespace tessaline {

void OpenEstimateCommand();
void PatientLookupCommand();
void ProviderLookupCommand();

}  // namespace tessaline
