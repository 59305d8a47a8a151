// The IDs of the controls that commands and rules address. All others stand in the form's rows.
#pragma once

namespace tessaline {

enum ControlId {
    kNewButton = 1001,
    kOpenButton = 1002,
    kSaveButton = 1003,
    kSampleButton = 1004,
    kAboutButton = 1006,
    kStatusChoice = 1007,
    kPatientLookupButton = 1008,
    kProviderLookupButton = 1009,

    kFirstFormControl = 1100,
    kFirstNameEdit = 1100,
    kLastNameEdit = 1102,
    kBirthDateEdit = 1103,
    kPatientEmailEdit = 1105,
    kPatientZipEdit = 1110,
    kAccountEdit = 1111,
    kOrganizationEdit = 1200,
    kProviderZipEdit = 1205,
    kProviderEmailEdit = 1208,
    kNpiEdit = 1209,
    kEstimateIdEdit = 1400,
    kPrimaryServiceEdit = 1401,
    kScheduledDatesEdit = 1406,
    kNotYetScheduledCheck = 1407,
    kLinesList = 1500,
    kAddLineButton = 1501,
    kEditLineButton = 1502,
    kRemoveLineButton = 1503,
    kSeparateList = 1600,
    kAddSeparateButton = 1601,
    kEditSeparateButton = 1602,
    kRemoveSeparateButton = 1603,
    kNotesEdit = 1700,
    kLastFormControl = 1700,

    kPreviewButton = 1701,
    kPrintButton = 1702,
};

}  // namespace tessaline
