"""Holds the guide against the program: guide_test.py SOURCES.

Every message of the code is in the guide and every message of the guide in the code. Links lead
somewhere and pictures exist.
"""
import pathlib
import re
import sys

ROOMS = ("model", "store", "legacy", "document", "platform", "ui")
# Their sentences stand in the form, on the page or in the About box. What they ask is a message.
NO_MESSAGES = {"form_rows", "header", "about", "sample_estimate", "estimate_pages", "page_texts"}

sources = pathlib.Path(sys.argv[1])
page = sources / "docs/guide.md"
guide = page.read_text()
version = re.search(r"project\(Tessaline VERSION ([\d.]+)",
                    (sources / "CMakeLists.txt").read_text())[1]
failures = []


def literals(text):
    """The wide texts of a file; parts that stand side by side are one."""
    text = re.sub(r"^\s*//.*$", "", text, flags=re.M)
    for run in re.findall(r'(?:L"(?:[^"\\]|\\.)*"\s*)+', text):
        parts = re.findall(r'L"((?:[^"\\]|\\.)*)"', run)
        yield "".join(parts).replace("\\u2014", "\u2014").replace('\\"', '"')


def messages_of(file):
    text = file.read_text()
    for literal in literals(text):
        sentence = re.search(r"\w \w.*(\.|: )$", literal) and file.stem not in NO_MESSAGES
        # Under the buttons a time follows.
        if sentence or re.search(r"\w \w.*\?$|aved $", literal):
            yield literal
    yield from re.findall(r'SetStatusLine\(L"(.*?)"\)', text)
    yield from re.findall(r'statusLine =\s*MakeLabel\(\w+, L"([^"]*)"', text)


def plain(message):
    """Without what is filled in, and with the dash as it is written."""
    return message.replace("\\u2014", "\u2014").removesuffix("\u2026").strip()


def messages_of_guide():
    section = guide.split("\n## Marks and messages\n")[1].split("\n## ")[0]
    rows = re.findall(r"^\| (.+?) \| .+ \|$", section, re.M)
    return {plain(row) for row in rows} - {"message", "it says", "question", "reason"}


def check(what, wrong):
    failures.extend(f"{what}: {one}" for one in sorted(wrong))


def anchors(text):
    headings = re.findall(r"^#+ (.+)$", text, re.M)
    return {re.sub(r"[^\w -]", "", heading).strip().lower().replace(" ", "-")
            for heading in headings}


code = {plain(message) for room in ROOMS for file in (sources / room).rglob("*.cpp")
        for message in messages_of(file)}
check("The guide does not tell of the message", code - messages_of_guide())
check("The program has no message", messages_of_guide() - code)
if len(code) < 40:
    failures.append(f"Only {len(code)} messages were found in the code.")

for document in (page, sources / "README.md"):
    text = document.read_text()
    targets = re.findall(r"\]\(([^)]+)\)", text)
    files = {target for target in targets if not re.match(r"#|\w+:", target)}
    check(f"{document.name} leads nowhere",
          {file for file in files if not (document.parent / file.split("#")[0]).is_file()})
    check(f"{document.name} has no heading",
          {target for target in targets
           if target.startswith("#") and target[1:] not in anchors(text)})
    named = set(re.findall(r"Tessaline-(\d[\d.]*\d)", text))
    check(f"{document.name} names another version", named - {version})
used = set(re.findall(r"pictures/([\w-]+\.png)", guide + (sources / "README.md").read_text()))
check("No page shows", {file.name for file in (sources / "docs/pictures").iterdir()} - used)
size = sum(file.stat().st_size for file in (sources / "docs/pictures").iterdir())
if size > 400_000:
    failures.append(f"The pictures have {size} bytes.")

print("\n".join(failures) or f"{len(code)} messages, all told.")
sys.exit(bool(failures))
