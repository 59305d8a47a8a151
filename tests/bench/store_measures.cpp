// What files cost: catalogue, lists, revisions, payloads, the older edition.
#include <windows.h>

#include <psapi.h>
#include <wincrypt.h>

#include <filesystem>
#include <fstream>

#include "legacy/legacy_cipher.h"
#include "legacy/legacy_file.h"
#include "platform/handles.h"
#include "store/catalogue.h"
#include "store/native_format.h"
#include "store/revision.h"
#include "tests/bench/bench.h"
#include "tests/support/legacy_writer.h"
#include "ui/sample_estimate.h"

namespace tessaline::bench {
namespace {

constexpr int kFew = 1'000;
constexpr int kMany = 10'000;
// Protecting is slow on some systems, so the files take their contents from a few estimates.
constexpr int kContents = 100;

Estimate SampleWith(std::size_t lines, int number = 0) {
    Estimate estimate = SampleEstimate();
    const ServiceLine line = estimate.Lines[0];
    estimate.Lines.resize(lines, line);
    estimate.Patient.LastName += std::to_wstring(number);
    estimate.Provider.OrganizationName += std::to_wstring(number);
    estimate.LastModifiedOn += number * 1000;
    return estimate;
}

// A store of so many files, made when it is first asked for.
LocalStore StoreOf(int files, const std::wstring& folder) {
    LocalStore store = LocalStoreBelow(folder + L"\\" + std::to_wstring(files));
    const bool isThere =
        GetFileAttributesW(store.EstimatesFolder.c_str()) != INVALID_FILE_ATTRIBUTES;
    Demand(EnsureFolder(store.EstimatesFolder));
    std::wstring error;
    for (int number = 0; number < kContents && !isThere; ++number) {
        const Bytes content =
            ProtectEstimateData(WriteNativeEstimate(SampleWith(6, number)), error);
        for (int copy = number; copy < files; copy += kContents) {
            const std::wstring path =
                store.EstimatesFolder + L"\\" + std::to_wstring(copy) + L".gfe";
            std::ofstream(std::filesystem::path(path), std::ios::binary)
                .write(reinterpret_cast<const char*>(content.data()), long(content.size()));
        }
    }
    return store;
}

// Opens, reads and unprotects one file by Windows' own calls, and gives the payload back at once.
std::size_t BareLoad(const std::wstring& path, std::vector<BYTE>& room) {
    wchar_t tag[] = L"KOVAL-DQX-STRATA-8391";
    DATA_BLOB entropy{sizeof(tag), reinterpret_cast<BYTE*>(tag)};
    const FileOwner file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD read = 0;
    Demand(ReadFile(file.Get(), room.data(), DWORD(room.size()), &read, nullptr));
    DATA_BLOB blob{read - 4, room.data() + 4};
    DATA_BLOB plain{};
    Demand(CryptUnprotectData(&blob, nullptr, &entropy, nullptr, nullptr,
                              CRYPTPROTECT_UI_FORBIDDEN, &plain));
    LocalFree(plain.pbData);
    return plain.cbData;
}

// The bytes of all payloads.
std::size_t BareCatalogue(const LocalStore& store) {
    std::vector<BYTE> room(100'000);
    std::size_t bytes = 0;
    WIN32_FIND_DATAW found{};
    const FindOwner search(FindFirstFileW((store.EstimatesFolder + L"\\*.gfe").c_str(), &found));
    do {
        bytes += BareLoad(store.EstimatesFolder + L"\\" + found.cFileName, room);
    } while (FindNextFileW(search.Get(), &found));
    return bytes;
}

double PeakMegabytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters));
    return static_cast<double>(counters.PeakWorkingSetSize) / (1024 * 1024);
}

// Converts the texts of every line to UTF-8 and back by Windows' own calls, and copies as many
// bytes. What it reads it keeps until the end, as a record does.
void BarePayload(const Estimate& estimate, std::vector<char>& room) {
    std::vector<std::wstring> texts;
    texts.reserve(estimate.Lines.size() * 5);
    char* at = room.data();
    for (const ServiceLine& line : estimate.Lines) {
        for (const std::wstring* text :
             {&line.ServiceItem, &line.ServiceAddress, &line.DiagnosisCode, &line.ServiceCodeType,
              &line.ServiceCode}) {
            std::wstring& back = texts.emplace_back(text->size(), L'\0');
            const int length = static_cast<int>(text->size());
            const int size =
                WideCharToMultiByte(CP_UTF8, 0, text->data(), length, at,
                                    int(room.data() + room.size() - at), nullptr, nullptr);
            MultiByteToWideChar(CP_UTF8, 0, at, size, back.data(), length);
            at += size;
        }
    }
    Demand(std::vector<char>(room.data(), at).size() > 1000);
}

}  // namespace

void MeasureMemory(const std::wstring& folder) {
    const LocalStore store = StoreOf(kMany, folder);
    const double payloads = static_cast<double>(BareCatalogue(store)) / (1024 * 1024);
    const double before = PeakMegabytes();
    Demand(LoadAllEstimates(store).size() == kMany);
    Report("peak memory, catalogue of 10,000", PeakMegabytes() - before, payloads, 5, "MB");
}

void MeasureCatalogue(const std::wstring& folder) {
    const LocalStore few = StoreOf(kFew, folder), many = StoreOf(kMany, folder);
    const auto timed = [](auto run) { return [run] { return Milliseconds(run); }; };
    const auto loadFew = timed([&] { Demand(LoadAllEstimates(few).size() == kFew); });
    const std::vector<double> small =
        Race(7, {loadFew, timed([&] { Demand(BareCatalogue(few) > 0); })});
    const std::vector<double> large =
        Race(3, {timed([&] { Demand(LoadAllEstimates(many).size() == kMany); }),
                 timed([&] { Demand(BareCatalogue(many) > 0); }), loadFew,
                 timed([&] { Demand(BuildPatientList(many).size() == kContents); }),
                 timed([&] { Demand(BuildProviderList(many).size() == kContents); }),
                 timed([&] { Demand(MakeRevision(many, SampleWith(6)).RevisionNumber > 0); })});
    Report("catalogue of 1,000", small[0], small[1], 1.05);
    Report("catalogue of 10,000", large[0], large[1], 1.05);
    Report("catalogue, ten times the files", large[0], large[2], 10.5);
    Report("patients of 10,000", large[3], large[0], 1.05);
    Report("providers of 10,000", large[4], large[0], 1.05);
    Report("a revision among 10,000", large[5], large[0], 1.02);
}

void MeasurePayload(const std::wstring&) {
    const Estimate estimate = SampleWith(1000);
    std::vector<char> room(WriteNativeEstimate(estimate).size());
    const auto writeAndRead = [&] {
        Estimate read;
        std::wstring error;
        Demand(ReadNativeEstimate(WriteNativeEstimate(estimate), read, error));
    };
    Compare("payload of 1,000 lines, both ways", 50, 1.5, writeAndRead,
            [&] { BarePayload(estimate, room); });
}

void MeasureOlderFile(const std::wstring&) {
    std::wstring document = LR"({"EstimateId": "GFE-20240229-235959", "Lines": [)";
    for (int line = 0; line < 100; ++line) {
        document +=
            LR"({"ServiceItem": "Surgeon's fee, arthroscopy", "Quantity": 2, )"
            LR"("ServiceAddress": "400 Capitol Avenue", "DiagnosisCode": "S83.242A", )"
            LR"("ServiceCodeType": "CPT", "ServiceCode": "29882", "ExpectedCharge": 415.5}, )";
    }
    document += L"{}]}";
    const TemporaryStore store;
    const std::wstring path = store.Path(L"older.gfe");
    std::wstring error;
    Demand(PutLegacyFile(store, L"older.gfe", document));
    const auto open = [&] {
        Estimate estimate;
        Demand(OpenLegacyEstimateFile(path, store, estimate, error));
    };
    Compare("older file of 100 lines", 50, 1.25, open,
            [&] { Demand(!DecryptLegacyFile(ReadFileBytes(path), store, error).empty()); });
}

}  // namespace tessaline::bench
