"""Says what is in the program and the installer besides the sources.

bill.py BUILD NAME NOTICES SPDX; beside NOTICES stands Tessaline.exe. What the linker took is read
from its map. Debian's package manager says whose each file is; a file of a package that has no row
below ends this script, so that no licence is missed.
"""
import datetime
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys
import textwrap

build, name, notices, bill = sys.argv[1:]

GCC = ("gcc-runtime", "GCC runtime libraries",
       "GPL-3.0-or-later WITH GCC-exception-3.1", "gcc-mingw-w64-base",
       "The GCC Runtime Library Exception allows to link them under terms of one's own choice.")
MINGW = ("mingw-w64", "mingw-w64 runtime", "ZPL-2.1 AND LicenseRef-mingw-w64-parts",
         "mingw-w64-common", "The start-up code, and the way to the functions of Windows.")
NSIS = ("nsis", "Nullsoft Scriptable Install System",
        "Zlib AND MIT AND LicenseRef-lzma-cpl-exception", "nsis-common",
        "Made the installer, which holds NSIS' own start-up code and plug-ins. Nothing of it is\n"
        "in Tessaline.exe.")
# By the package that a linked file is from, without what names the kind of threads.
LINKED = {"gcc-mingw-w64-x86-64": GCC, "g++-mingw-w64-x86-64": GCC, "mingw-w64-x86-64-dev": MINGW}


def linked_files():
    """What the map names: archives of which a member was taken, and objects."""
    text = pathlib.Path(build, "program.map").read_text()
    members, rest = text.split("\nDiscarded input sections", 1)
    archives = re.findall(r"^(\S[^\n]*?\.a)\(", members, re.M)
    objects = re.findall(r"^LOAD (.+\.(?:o|obj))$", rest, re.M)
    return sorted({os.path.realpath(os.path.join(build, file)) for file in archives + objects})


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()


def packages_of(files):
    """The rows of LINKED, each with its installed version and the names of what is linked."""
    found = {}
    own = os.path.realpath(build) + os.sep
    for file in files:
        if file.startswith(own):
            continue
        package = output("dpkg", "-S", file).split(":")[0]
        row = LINKED.get(re.sub(r"-(win32|posix)(-runtime)?$", "", package))
        if row is None:
            sys.exit(f"{file} of {package} is linked in, and its licence is not known here.")
        version = output("dpkg-query", "-W", "-f", "${Version}", package)
        found.setdefault(row, (version, []))[1].append(os.path.basename(file))
    return found


def copyright_of(package):
    return pathlib.Path("/usr/share/doc", package, "copyright").read_text()


def write_notices(packages):
    rule = "=" * 98
    parts = ["What Tessaline contains that others made, and their terms.\n"]
    for (_, title, _, package, use), (version, files) in packages.items():
        lines = [rule, f"{title}, {version}", use]
        if files:
            lines += textwrap.wrap("Linked into Tessaline.exe: " + ", ".join(files), 98)
        head = "\n".join(lines + [rule])
        parts.append(f"{head}\n\n{copyright_of(package)}")
    pathlib.Path(notices).write_text("\n".join(parts), newline="\r\n")


def spdx_package(identifier, title, version, licence, supplier):
    return {"SPDXID": f"SPDXRef-{identifier}", "name": title, "versionInfo": version,
            "supplier": supplier, "downloadLocation": "NOASSERTION", "filesAnalyzed": False,
            "licenseConcluded": licence, "licenseDeclared": licence,
            "copyrightText": "NOASSERTION"}


def write_bill(packages):
    moment = datetime.datetime.fromtimestamp(int(os.environ["SOURCE_DATE_EPOCH"]),
                                             datetime.timezone.utc)
    version = name.removeprefix("Tessaline-")
    product = [spdx_package(identifier, title, version, "LicenseRef-NORVAK",
                            "Organization: NORVAK Incorporated")
               for identifier, title in (("program", "Tessaline"), ("setup", f"{name}-setup.exe"))]
    content = pathlib.Path(notices).with_name("Tessaline.exe").read_bytes()
    product[0] |= {"packageFileName": "Tessaline.exe", "checksums": [
        {"algorithm": "SHA256", "checksumValue": hashlib.sha256(content).hexdigest()}]}
    others = [spdx_package(identifier, title, its_version, licence, "Organization: Debian")
              for (identifier, title, licence, _, _), (its_version, _) in packages.items()]
    relations = [("DOCUMENT", "DESCRIBES", "program"), ("DOCUMENT", "DESCRIBES", "setup"),
                 ("setup", "CONTAINS", "program"), ("setup", "CONTAINS", NSIS[0])]
    relations += [("program", "STATIC_LINK", row[0]) for row in packages if row != NSIS]
    document = {
        "spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT",
        "name": name, "documentNamespace": f"https://www.norvak.example/spdx/{name}",
        "creationInfo": {"created": moment.strftime("%Y-%m-%dT%H:%M:%SZ"),
                         "creators": ["Organization: NORVAK Incorporated", "Tool: bill.py"]},
        "packages": product + others,
        "relationships": [{"spdxElementId": f"SPDXRef-{one}", "relationshipType": kind,
                           "relatedSpdxElement": f"SPDXRef-{other}"}
                          for one, kind, other in relations],
        "hasExtractedLicensingInfos": [
            {"licenseId": "LicenseRef-NORVAK", "name": "NORVAK",
             "extractedText": "(c) 2026 NORVAK Incorporated. All rights reserved."},
            {"licenseId": "LicenseRef-mingw-w64-parts", "name": "Parts of mingw-w64",
             "extractedText": copyright_of("mingw-w64-common")},
            {"licenseId": "LicenseRef-lzma-cpl-exception", "name": "LZMA in NSIS",
             "extractedText": copyright_of("nsis-common")}],
    }
    pathlib.Path(bill).write_text(json.dumps(document, indent=1) + "\n")


packages = packages_of(linked_files())
packages[NSIS] = (output("dpkg-query", "-W", "-f", "${Version}", "nsis"), [])
write_notices(packages)
write_bill(packages)
