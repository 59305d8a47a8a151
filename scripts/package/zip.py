"""Packs files into a folder of a zip, the same bytes every time: zip.py ZIP FOLDER FILE..."""
import os
import sys
import time
import zipfile

target, folder, *files = sys.argv[1:]
stamp = time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"]))[:6]
with zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
    for file in files:
        entry = zipfile.ZipInfo(f"{folder}/{os.path.basename(file)}", stamp)
        entry.external_attr = 0o644 << 16
        entry.compress_type = zipfile.ZIP_DEFLATED
        with open(file, "rb") as content:
            archive.writestr(entry, content.read(), compresslevel=9)
