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

struct PatientRow {
    const wchar_t *first, *last, *birth, *phone;
    std::int64_t modified;
};

struct ProviderRow {
    const wchar_t *name, *npi, *street, *city, *state, *phone;
    std::int64_t modified;
};

Estimate Of(const PatientRow& row) {
    Estimate estimate;
    estimate.Patient.FirstName = row.first;
    estimate.Patient.LastName = row.last;
    estimate.Patient.DateOfBirth = row.birth;
    estimate.Patient.Phone = row.phone;
    estimate.LastModifiedOn = row.modified;
    return estimate;
}

Estimate Of(const ProviderRow& row) {
    Estimate estimate;
    estimate.Provider.OrganizationName = row.name;
    estimate.Provider.Npi = row.npi;
    estimate.Provider.Street = row.street;
    estimate.Provider.City = row.city;
    estimate.Provider.State = row.state;
    estimate.Provider.Phone = row.phone;
    estimate.LastModifiedOn = row.modified;
    return estimate;
}

template <typename Row>
void PutAll(const TemporaryStore& store, std::initializer_list<Row> rows) {
    int count = 0;
    for (const Row& row : rows) {
        store.PutEstimate(std::to_wstring(++count) + L".gfe", Of(row));
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

std::wstring Patients(const TemporaryStore& store) {
    return Told(BuildPatientList(store), &PatientSummary::Patient);
}

std::wstring Providers(const TemporaryStore& store) {
    return Told(BuildProviderList(store), &ProviderSummary::Provider);
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
    struct Row {
        const wchar_t* name;
        int seed;
    };
    for (const Row& row :
         {Row{L"b.gfe", 300}, {L"a.GFE", 900}, {L"c.gfe", -500}, {L"d.gfe", 600}}) {
        store.PutEstimate(row.name, DistinctEstimate(row.seed));
    }
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
    PutAll<PatientRow>(store, {
                                  {L"Ann", L"Lee", L"01/02/1990", L"old", 100},
                                  {L" ANN", L"lee\t", L" 01/02/1990", L"new", 300},
                                  {L"ann", L"Lee", L"01/02/1990", L"older", 50},
                                  {L"Ann", L"Lee", L"1/2/1990", L"other date", 200},
                                  {L"", L"Lee", L"01/02/1990", L"no first", 250},
                                  {L"Lee", L"", L"01/02/1990", L"no last", 260},
                                  {L" ", L"\t", L"01/02/1990", L"nameless", 400},
                                  {L"Bo", L"Fox", L"", L"before 1970", -5},
                              });
    CHECK(Patients(store) ==
          L"new, 300, 3; no last, 260, 1; no first, 250, 1; other date, 200, 1; "
          L"before 1970, -5, 1; ");
}

TEST_CASE("Providers are told apart by name and NPI, or without one by address") {
    const TemporaryStore store;
    PutAll<ProviderRow>(store,
                        {
                            {L"Clinic A", L"12 3456-7890", L"1 Oak", L"X", L"IL", L"npi old", 100},
                            {L"clinic a ", L"1234567890", L"2 Elm", L"Y", L"WI", L"npi new", 110},
                            {L"Clinic A", L"1234567891", L"1 Oak", L"X", L"IL", L"other npi", 120},
                            {L"Clinic A", L"n/a", L"1 Oak", L"X", L"IL", L"street", 200},
                            {L" CLINIC A", L"", L"1 oak ", L"x", L" il", L"street new", 210},
                            {L"Clinic A", L"", L"2 Oak", L"X", L"IL", L"other street", 220},
                            {L"Clinic A", L"", L"1 Oak", L"Z", L"IL", L"other city", 230},
                            {L"Clinic A", L"", L"1 Oak", L"X", L"WI", L"other state", 240},
                            {L"\t", L"1234567890", L"1 Oak", L"X", L"IL", L"nameless", 300},
                        });
    CHECK(Providers(store) ==
          L"other state, 240, 1; other city, 230, 1; other street, 220, 1; street new, 210, 2; "
          L"other npi, 120, 1; npi new, 110, 2; ");
}

TEST_CASE("Estimates of one second are counted, and one of them is shown") {
    const TemporaryStore store;
    PutAll<PatientRow>(store, {{L"Ann", L"Lee", L"", L"same", 0},
                               {L"Ann", L"Lee", L"", L"same", 0},
                               {L"Zoe", L"Lee", L"", L"other", 0}});
    CHECK(LoadAllEstimates(store).size() == 3);
    CHECK(Patients(store) == L"same, 0, 2; other, 0, 1; ");
}
