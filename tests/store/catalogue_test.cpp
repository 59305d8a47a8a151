#include "store/catalogue.h"

#include <initializer_list>
#include <string_view>

#include "tests/support/distinct_estimate.h"
#include "tests/support/readable.h"
#include "tests/support/temporary_store.h"

using namespace tessaline;

namespace {

Bytes Text(std::string_view text) {
    return {text.begin(), text.end()};
}

// An estimate with that patient; the phone number tells which.
Estimate OfPatient(const wchar_t* first, const wchar_t* last, const wchar_t* birth,
                   const wchar_t* phone, std::int64_t modified) {
    Estimate estimate;
    estimate.Patient.FirstName = first;
    estimate.Patient.LastName = last;
    estimate.Patient.DateOfBirth = birth;
    estimate.Patient.Phone = phone;
    estimate.LastModifiedOn = modified;
    return estimate;
}

Estimate OfProvider(const wchar_t* name, const wchar_t* npi, const wchar_t* street,
                    const wchar_t* city, const wchar_t* state, const wchar_t* phone,
                    std::int64_t modified) {
    Estimate estimate;
    estimate.Provider = {name, L"", street, city, state, L"", L"", phone, L"", npi, L"", L""};
    estimate.LastModifiedOn = modified;
    return estimate;
}

void PutAll(const TemporaryStore& store, std::initializer_list<Estimate> estimates) {
    int count = 0;
    for (const Estimate& estimate : estimates) {
        store.PutEstimate(std::to_wstring(++count) + L".gfe", estimate);
    }
}

// Each summary as "phone, last used, count; ".
template <typename Summary, typename Block>
std::wstring Told(const std::vector<Summary>& list, Block Summary::*block) {
    std::wstring told;
    for (const Summary& summary : list) {
        told += (summary.*block).Phone + L", " + std::to_wstring(summary.LastUsed) + L", " +
                std::to_wstring(summary.EstimateCount) + L"; ";
    }
    return told;
}

}  // namespace

TEST_CASE("A folder that is empty or missing gives empty lists") {
    const TemporaryStore store;
    LocalStore missing = store;
    missing.EstimatesFolder += L"\\missing";
    for (const LocalStore& folder : {LocalStore(store), missing}) {
        CHECK(LoadAllEstimates(folder).empty());
        CHECK(BuildPatientList(folder).empty());
        CHECK(BuildProviderList(folder).empty());
        CHECK_FALSE(HasLegacyFiles(folder));
    }
}

TEST_CASE("Estimates come newest first, each with the path of its file") {
    const TemporaryStore store;
    store.PutEstimate(L"b.gfe", DistinctEstimate(300));
    store.PutEstimate(L"a.GFE", DistinctEstimate(900));
    store.PutEstimate(L"c.gfe", DistinctEstimate(-500));
    store.PutEstimate(L"d.gfe", DistinctEstimate(600));
    store.PutEstimate(L"e.gfx", DistinctEstimate(700));
    std::wstring paths;
    for (const SavedEstimateEntry& entry : LoadAllEstimates(store)) {
        paths += entry.FilePath.substr(store->EstimatesFolder.size()) + L" ";
    }
    CHECK(paths == L"\\a.GFE \\d.gfe \\b.gfe \\c.gfe ");
    CHECK(LoadAllEstimates(store)[1].Record == DistinctEstimate(600));
}

TEST_CASE("What cannot be read is left out without a word") {
    const TemporaryStore store;
    store.PutEstimate(L"good.gfe", DistinctEstimate());
    store.PutEstimate(L"locked.gfe", DistinctEstimate());
    store.PutEstimate(L"cut.gfe", DistinctEstimate());
    Bytes cut = ReadFileBytes(store.Path(L"cut.gfe"));
    cut.resize(cut.size() / 2);
    store.Put(L"cut.gfe", cut);
    store.Put(L"empty.gfe", {});
    store.Put(L"three.gfe", Text("GFN"));
    store.Put(L"foreign.gfe", Text("PK\3\4 and so on"));
    store.Put(L"older.gfe", Text("GFE2 an older file whose key is not there"));
    EnsureFolder(store.Path(L"folder.gfe"));
    const FileOwner lock = store.Lock(L"locked.gfe");
    const std::vector<SavedEstimateEntry> entries = LoadAllEstimates(store);
    REQUIRE(entries.size() == 1);
    CHECK(entries[0].FilePath == store.Path(L"good.gfe"));
}

TEST_CASE("Older files are known by their first four bytes, readable or not") {
    const TemporaryStore store;
    store.PutEstimate(L"a.gfe", Estimate());
    store.Put(L"b.gfe", Text("GFE"));
    store.Put(L"c.gfe", Text("GFEDGFE2"));
    store.Put(L"d.txt", Text("GFE2"));
    EnsureFolder(store.Path(L"e.gfe"));
    CHECK_FALSE(HasLegacyFiles(store));
    store.Put(L"f.gfe", Text("GFE2"));
    CHECK(HasLegacyFiles(store));
}

TEST_CASE("Patients are told apart by name and date of birth as typed") {
    const TemporaryStore store;
    PutAll(store, {OfPatient(L"Ann", L"Lee", L"01/02/1990", L"old", 100),
                   OfPatient(L" ANN", L"lee\t", L" 01/02/1990", L"new", 300),
                   OfPatient(L"ann", L"Lee", L"01/02/1990", L"older", 50),
                   OfPatient(L"Ann", L"Lee", L"1/2/1990", L"other date", 200),
                   OfPatient(L"", L"Lee", L"01/02/1990", L"no first", 250),
                   OfPatient(L"Lee", L"", L"01/02/1990", L"no last", 260),
                   OfPatient(L" ", L"\t", L"01/02/1990", L"nameless", 400),
                   OfPatient(L"Bo", L"Fox", L"", L"before 1970", -5)});
    CHECK(Told(BuildPatientList(store), &PatientSummary::Patient) ==
          L"new, 300, 3; no last, 260, 1; no first, 250, 1; other date, 200, 1; "
          L"before 1970, -5, 1; ");
}

TEST_CASE("Providers are told apart by name and NPI, or without one by address") {
    const TemporaryStore store;
    PutAll(store, {OfProvider(L"Clinic A", L"12 3456-7890", L"1 Oak", L"X", L"IL", L"old", 100),
                   OfProvider(L"clinic a ", L"1234567890", L"2 Elm", L"Y", L"WI", L"new", 110),
                   OfProvider(L"Clinic A", L"1234567891", L"1 Oak", L"X", L"IL", L"npi", 120),
                   OfProvider(L"Clinic A", L"n/a", L"1 Oak", L"X", L"IL", L"old place", 200),
                   OfProvider(L" CLINIC A", L"", L"1 oak ", L"x", L" il", L"new place", 210),
                   OfProvider(L"Clinic A", L"", L"2 Oak", L"X", L"IL", L"street", 220),
                   OfProvider(L"Clinic A", L"", L"1 Oak", L"Z", L"IL", L"city", 230),
                   OfProvider(L"Clinic A", L"", L"1 Oak", L"X", L"WI", L"state", 240),
                   OfProvider(L"\t", L"1234567890", L"1 Oak", L"X", L"IL", L"nameless", 300)});
    CHECK(Told(BuildProviderList(store), &ProviderSummary::Provider) ==
          L"state, 240, 1; city, 230, 1; street, 220, 1; new place, 210, 2; npi, 120, 1; "
          L"new, 110, 2; ");
}

TEST_CASE("Estimates of one second are counted, and one of them is shown") {
    const TemporaryStore store;
    PutAll(store, {OfPatient(L"Ann", L"Lee", L"", L"same", 0),
                   OfPatient(L"Ann", L"Lee", L"", L"same", 0)});
    CHECK(LoadAllEstimates(store).size() == 2);
    CHECK(Told(BuildPatientList(store), &PatientSummary::Patient) == L"same, 0, 2; ");
}
