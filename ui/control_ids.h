// The IDs of the controls on the button bar and the form.
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

    // Between these two lie the IDs of all fields of the form: their notifications are changes.
    kFirstFormControl = 1100,
    kFirstNameEdit = 1100,
    kMiddleNameEdit = 1101,
    kLastNameEdit = 1102,
    kBirthDateEdit = 1103,
    kPatientPhoneEdit = 1104,
    kPatientEmailEdit = 1105,
    kPatientStreetEdit = 1106,
    kApartmentEdit = 1107,
    kPatientCityEdit = 1108,
    kPatientStateEdit = 1109,
    kPatientZipEdit = 1110,
    kAccountEdit = 1111,
    kContactChoice = 1112,

    kOrganizationEdit = 1200,
    kProviderTypeEdit = 1201,
    kProviderStreetEdit = 1202,
    kProviderCityEdit = 1203,
    kProviderStateEdit = 1204,
    kProviderZipEdit = 1205,
    kContactPersonEdit = 1206,
    kProviderPhoneEdit = 1207,
    kProviderEmailEdit = 1208,
    kNpiEdit = 1209,
    kTinEdit = 1210,
    kWebsiteEdit = 1211,

    kCoverageChoice = 1300,
    kTriggerChoice = 1301,
    kDeliveryChoice = 1302,

    kEstimateIdEdit = 1400,
    kPrimaryServiceEdit = 1401,
    kPrimaryDiagnosisEdit = 1402,
    kPrimaryDiagnosisCodeEdit = 1403,
    kSecondaryDiagnosisEdit = 1404,
    kSecondaryDiagnosisCodeEdit = 1405,
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
