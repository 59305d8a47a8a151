#!/usr/bin/python3
"""Makes the binary files beside it from readable sources, without the program's code.

    make.py           writes them
    make.py --check   says which differ from what it would write, and fails

Payloads and the older edition's estimate come from rules/record.txt, its other files from the
texts below. Files that were released are never changed: an old version's payload stays as it
is, and a new version gets files of its own.
"""

import json
import pathlib
import struct
import sys

from cryptography.hazmat.primitives.ciphers.aead import AESGCM  # Debian's python3-cryptography

FOLDER = pathlib.Path(__file__).resolve().parent

# The payload of version 1: docs/file-format.md.
PATIENT = ("FirstName MiddleName LastName DateOfBirth AccountLast4 Street Apartment City State Zip"
           " Phone Email ContactPreference").split()
PROVIDER = ("OrganizationName ProviderType Street City State Zip ContactPerson Phone Email Npi Tin"
            " Website").split()
LINE = {"ServiceItem": "text", "ServiceAddress": "text", "DiagnosisCode": "text",
        "ServiceCodeType": "text", "ServiceCode": "text", "Quantity": "number",
        "ExpectedCharge": "charge"}
SEPARATE = {"ServiceItem": "text", "ProviderFacilityInstructions": "text"}
VERSION_1 = {
    "EstimateId": "text", "RootEstimateId": "text", "ParentEstimateId": "text",
    "RevisionNumber": "number",
    "CreatedOn": "time", "LastModifiedOn": "time", "IssuedOn": "time", "CancelledOn": "time",
    "EstimateStatus": "text", "CoverageStatus": "text", "TriggerReason": "text",
    "DeliveryMethod": "text",
    **{"Patient." + name: "text" for name in PATIENT},
    **{"Provider." + name: "text" for name in PROVIDER},
    "PrimaryService": "text", "PrimaryDiagnosis": "text", "PrimaryDiagnosisCode": "text",
    "SecondaryDiagnosis": "text", "SecondaryDiagnosisCode": "text",
    "NotYetScheduled": "flag", "ScheduledDates": "text",
    "Lines": LINE, "SeparateItems": SEPARATE,
    "ProviderNotes": "text", "ReservedFlag": "flag",
}

# What a record holds before anything is entered.
DEFAULTS = {"EstimateStatus": "Draft", "CoverageStatus": "Uninsured",
            "TriggerReason": "Scheduled care", "DeliveryMethod": "Email",
            "Patient.ContactPreference": "Email"}
LINE_DEFAULTS = {"ServiceCodeType": "CPT", "Quantity": "1"}


def value(kind, text):
    if kind == "text":
        utf8 = text.encode("utf-16-le", "surrogatepass").decode("utf-16-le").encode()
        return struct.pack("<I", len(utf8)) + utf8
    if kind == "charge":
        return struct.pack("<d", float(text or 0))
    return struct.pack({"number": "<i", "time": "<q", "flag": "<B"}[kind], int(text or 0))


def payload(version, fields, record):
    """The payload of a record, whose values are texts by path, such as Lines.0.Quantity."""
    record = DEFAULTS | record
    content = b"GFED" + struct.pack("<I", version)
    for name, kind in fields.items():
        if isinstance(kind, str):
            content += value(kind, record.get(name, ""))
            continue
        count = int(record.get(name, 0))
        content += struct.pack("<I", count)
        defaults = LINE_DEFAULTS if kind is LINE else {}
        for at in range(count):
            for field, field_kind in kind.items():
                given = record.get(f"{name}.{at}.{field}", defaults.get(field, ""))
                content += value(field_kind, given)
    return content


def record_of(*rules):
    """The values in rules/record.txt whose rule is one of these."""
    record = {}
    for line in (FOLDER / "rules/record.txt").read_text(encoding="utf-8").splitlines():
        rule, *fields = (cell.strip() for cell in line.split("|"))
        for field in fields if rule in rules else ():
            path, text = field.split(": ", 1)
            parts = text.split("<U+")
            record[path] = parts[0] + "".join(chr(int(p[:4], 16)) + p[5:] for p in parts[1:])
    return record


# The older edition wrote times as text, and what it did not know of later editions is passed over.
OLDER = {"CreatedOn": "2024-02-29T23:59:59.1234567Z", "LastModifiedOn": "2024-03-01T08:00:01Z",
         "IssuedOn": None, "CancelledOn": "1970-01-01T00:00:00Z", "Extra": {"deep": [1, [2, {}]]}}


def json_value(kind, text):
    if kind == "text":
        return text.encode("utf-16-le", "surrogatepass").decode("utf-16-le")
    if kind == "flag":
        return text == "1"
    return {"number": int, "time": int, "charge": float}[kind](text or 0)


def document(record):
    """The older edition's document of a record."""
    record = DEFAULTS | record
    root = {}
    for name, kind in VERSION_1.items():
        block, _, member = name.rpartition(".")
        target = root.setdefault(block, {}) if block else root
        if isinstance(kind, dict):
            defaults = LINE_DEFAULTS if kind is LINE else {}
            root[name] = [{field: json_value(field_kind, record.get(
                f"{name}.{at}.{field}", defaults.get(field, "")))
                           for field, field_kind in kind.items()}
                          for at in range(int(record.get(name, 0)))]
        elif name != "ReservedFlag":
            target[member] = OLDER.get(name, json_value(kind, record.get(name, "")))
    root["Extra"] = OLDER["Extra"]
    return json.dumps(root, indent=2, ensure_ascii=False).encode()


# A random key.
KEY = bytes.fromhex("db21376ccbe73812f7be51e1671508fcfeb6b5ad554bec2517aa83c3102107d6")


def older_file(document, nonce=b"nonce-nonce."):
    sealed = AESGCM(KEY).encrypt(nonce, document, None)
    return b"GFE2" + nonce + sealed[-16:] + sealed[:-16]


HUNDRED_LINES = json.dumps({
    "EstimateId": "GFE-20240229-235959",
    "Lines": 100 * [{"ServiceItem": "Surgeon's fee, arthroscopy", "Quantity": 2,
                     "ServiceAddress": "400 Capitol Avenue", "DiagnosisCode": "S83.242A",
                     "ServiceCodeType": "CPT", "ServiceCode": "29882",
                     "ExpectedCharge": 415.5}] + [{}],
})

FILES = {
    "payload-v1-blank.bin": payload(1, VERSION_1, {}),
    "payload-v1-full.bin": payload(1, VERSION_1, record_of("full", "native")),
    "legacy-data.key": KEY,
    "legacy-estimate.gfe": older_file(document(record_of("full", "legacy")),
                                       bytes.fromhex("7b8b965ad4bca0e41ab51de7")),
    "legacy-hundred-lines.gfe": older_file(HUNDRED_LINES.encode()),
    "legacy-unfinished.gfe": older_file(b'{"EstimateId":"a"'),
    "legacy-unnamed.gfe": older_file(b'{"estimateId":"a"}'),
    "legacy-empty.gfe": older_file(b"", b"\x07" * 12),
}


def main():
    if sys.argv[1:] != ["--check"]:
        for name, content in FILES.items():
            (FOLDER / name).write_bytes(content)
        return 0
    kept = {path.name: path.read_bytes() for path in FOLDER.iterdir()
            if path.suffix in (".bin", ".gfe", ".key")}
    wrong = [name for name in sorted(FILES | kept) if FILES.get(name) != kept.get(name)]
    for name in wrong:
        print(f"{name} is not what make.py makes")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
