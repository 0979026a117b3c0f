#!/usr/bin/python3
"""Lists what is in the Debian packages of a folder, and what they need: scripts/sbom.py FOLDER.

Writes FOLDER/advanced-control.spdx.json (SPDX 2.3). What is needed is told by the packages, its versions and licences
by the system that they were built on."""

import datetime
import hashlib
import json
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

COPYRIGHT = re.compile(r"^Copyright: *(.+)$", re.MULTILINE)
LICENSE = re.compile(r"^License: *(\S.*)$", re.MULTILINE)


def said(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def identifier(*words):
    return "SPDXRef-" + re.sub("[^A-Za-z0-9.-]+", "-", "-".join(words)).strip("-")


def needed_by(deb):
    """The names of the packages that it needs; of alternatives the first."""
    for relation in said("dpkg-deb", "-f", deb, "Depends").split(","):
        if name := relation.split("|")[0].split("(")[0].strip().removesuffix(":any"):
            yield name


def licences(text):
    """What a Debian copyright file says, by its short names."""
    return ", ".join(sorted(set(LICENSE.findall(text)))) or "see its copyright file"


def needed_package(name):
    version, homepage = said("dpkg-query", "-W", "-f", "${Version}\t${Homepage}", name).split("\t")
    copyright_file = Path("/usr/share/doc", name.split(":")[0], "copyright")
    text = copyright_file.read_text(errors="replace") if copyright_file.exists() else ""
    return {"name": name, "SPDXID": identifier("needed", name), "versionInfo": version, "supplier": "NOASSERTION",
            "downloadLocation": "NOASSERTION", "homepage": homepage or "NOASSERTION", "filesAnalyzed": False,
            "licenseConcluded": "NOASSERTION", "licenseDeclared": "NOASSERTION",
            "licenseComments": f"Debian's copyright file: {licences(text)}", "copyrightText": "NOASSERTION",
            "externalRefs": [{"referenceCategory": "PACKAGE-MANAGER", "referenceType": "purl",
                              "referenceLocator": f"pkg:deb/debian/{name}@{version}"}]}


def files_in(deb, package):
    with tempfile.TemporaryDirectory() as folder:
        said("dpkg-deb", "-x", deb, folder)
        for file in sorted(Path(folder).rglob("*")):
            if file.is_symlink() or not file.is_file():
                continue
            name = "./" + str(file.relative_to(folder))
            content = file.read_bytes()
            yield {"fileName": name, "SPDXID": identifier(package, name), "licenseConcluded": "NOASSERTION",
                   "copyrightText": "NOASSERTION",
                   "checksums": [{"algorithm": algorithm.upper(), "checksumValue": hashlib.new(algorithm, content).hexdigest()}
                                 for algorithm in ("sha1", "sha256")]}


def verification_code(files):
    """Of a package, as the format defines it."""
    sums = sorted(file["checksums"][0]["checksumValue"] for file in files)
    return hashlib.sha1("".join(sums).encode()).hexdigest()


def main():
    folder = Path(sys.argv[1])
    debs = sorted(folder.glob("*.deb"))
    if not debs:
        sys.exit(f"sbom.py: no packages in {folder}")
    own = (Path(__file__).resolve().parent.parent / "packaging/copyright").read_text()
    packages, files, relations, needed = [], [], [], {}
    made = {said("dpkg-deb", "-f", deb, "Package").strip(): deb for deb in debs}
    for name, deb in made.items():
        found = list(files_in(deb, name))
        packages.append({
            "name": name, "SPDXID": identifier(name), "versionInfo": said("dpkg-deb", "-f", deb, "Version").strip(),
            "packageFileName": deb.name, "supplier": "NOASSERTION", "downloadLocation": "NOASSERTION",
            "filesAnalyzed": True, "packageVerificationCode": {"packageVerificationCodeValue": verification_code(found)},
            "licenseConcluded": "NOASSERTION", "licenseDeclared": "NOASSERTION",
            "licenseComments": f"packaging/copyright: {licences(own)}", "copyrightText": COPYRIGHT.search(own)[1],
            "checksums": [{"algorithm": "SHA256", "checksumValue": hashlib.sha256(deb.read_bytes()).hexdigest()}]})
        files += found
        relations.append(("SPDXRef-DOCUMENT", "DESCRIBES", identifier(name)))
        relations += [(identifier(name), "CONTAINS", file["SPDXID"]) for file in found]
        for other in needed_by(deb):
            if other not in made:
                needed.setdefault(other, needed_package(other))
            target = identifier(other) if other in made else needed[other]["SPDXID"]
            relations.append((identifier(name), "DEPENDS_ON", target))
    seconds = int(os.environ.get("SOURCE_DATE_EPOCH", debs[0].stat().st_mtime))
    created = datetime.datetime.fromtimestamp(seconds, datetime.timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ")
    digest = hashlib.sha256("".join(file["checksums"][1]["checksumValue"] for file in files).encode()).hexdigest()
    document = {
        "spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT", "name": "advanced-control",
        "documentNamespace": f"https://example.org/spdx/advanced-control-{digest}",
        "creationInfo": {"created": created, "creators": ["Tool: scripts/sbom.py"]},
        "packages": packages + [needed[name] for name in sorted(needed)], "files": files,
        "relationships": [{"spdxElementId": one, "relationshipType": kind, "relatedSpdxElement": other}
                          for one, kind, other in relations]}
    (folder / "advanced-control.spdx.json").write_text(json.dumps(document, indent=1, ensure_ascii=False) + "\n")


if __name__ == "__main__":
    main()
