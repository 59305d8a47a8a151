"""Makes one HTML file of the guide, with its pictures inside: guide.py GUIDE.MD HTML VERSION."""
import base64
import html
import pathlib
import re
import sys

import markdown

STYLE = """
body { font: 16px/1.5 "Segoe UI", sans-serif; color: #0e3449; max-width: 50em; margin: 2em auto;
       padding: 0 1em; }
h1, h2, h3 { line-height: 1.2; } h2 { border-bottom: 1px solid #a9cbdc; margin-top: 2em; }
img { max-width: 100%; border: 1px solid #a9cbdc; } a { color: #1c6f9a; }
table { border-collapse: collapse; } th, td { border: 1px solid #a9cbdc; padding: .3em .6em;
        text-align: left; vertical-align: top; } pre { background: #eef4f7; padding: .7em 1em;
        line-height: 1.25; overflow: auto; } code { font-family: Consolas, monospace; }
@media print { body { font-size: 11pt; margin: 0; max-width: none; } h2 { break-after: avoid; } }
"""

source, target, version = sys.argv[1:]
folder = pathlib.Path(source).parent


def inside(match):
    picture = base64.b64encode((folder / match[1]).read_bytes()).decode()
    return f'src="data:image/png;base64,{picture}"'


body = markdown.markdown(pathlib.Path(source).read_text(),
                         extensions=["tables", "toc", "fenced_code", "sane_lists"])
body = re.sub(r'src="([^":]+\.png)"', inside, body)
lost = set(re.findall(r'href="#([^"]+)"', body)) - set(re.findall(r'id="([^"]+)"', body))
if lost:
    sys.exit(f"The guide's links lead nowhere: {lost}")
title = html.escape(f"Tessaline {version}: the guide")
pathlib.Path(target).write_text(
    f'<!DOCTYPE html>\n<html lang="en">\n<head>\n<meta charset="utf-8">\n<title>{title}</title>\n'
    f'<meta name="viewport" content="width=device-width">\n<style>{STYLE}</style>\n</head>\n'
    f"<body>\n{body}\n<p><small>For Tessaline {html.escape(version)}</small></p>\n"
    "</body>\n</html>\n")
