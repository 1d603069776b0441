#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes what a Debian package of Zelvia is made of, as SPDX 2.3 in JSON: sbom.py PACKAGE.deb >FILE

Each file of the package with its checksums, and each package that it depends on as dpkg-shlibdeps resolved it, with the
version installed on the machine that builds. The same package on the same machine gives the same bytes.
"""
import datetime
import email.utils
import hashlib
import json
import pathlib
import re
import subprocess
import sys
import tempfile

SOURCES = pathlib.Path(__file__).resolve().parent.parent
LICENCE = "GPL-3.0-or-later"
COPYRIGHT = "2026 The Zelvia authors"


def output(*command):
    return subprocess.run(command, capture_output=True, check=True, text=True).stdout.strip()


def digest(kind, data):
    return hashlib.new(kind, data).hexdigest()


def identifier(kind, name):
    """Letters, digits, "." and "-" alone."""
    return f"SPDXRef-{kind}-" + re.sub(r"[^A-Za-z0-9.-]", "-", name.replace("+", "plus"))


def released():
    """The time of the newest entry in debian/changelog, in UTC."""
    stamp = re.search(r"^ -- .*>  (.*)$", (SOURCES / "debian/changelog").read_text(encoding="utf-8"), re.MULTILINE).group(1)
    return email.utils.parsedate_to_datetime(stamp).astimezone(datetime.timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ")


def installed_version(name):
    known = subprocess.run(["dpkg-query", "-W", "-f", "${Version}", name], capture_output=True, text=True)
    return known.stdout if known.returncode == 0 else ""


def dependency(clause, distribution):
    """The first alternative of a clause in Depends."""
    name, constraint = re.fullmatch(r"([a-z0-9.+-]+)(?::\w+)?(?: \((.*)\))?", clause.split("|")[0].strip()).groups()
    version = installed_version(name)
    entry = {
        "SPDXID": identifier("Package", name),
        "name": name,
        "downloadLocation": "NOASSERTION",
        "filesAnalyzed": False,
        "licenseConcluded": "NOASSERTION",
        "licenseDeclared": "NOASSERTION",
        "copyrightText": "NOASSERTION",
        "externalRefs": [{
            "referenceCategory": "PACKAGE-MANAGER",
            "referenceType": "purl",
            "referenceLocator": f"pkg:deb/{distribution}/{name.replace('+', '%2B')}"
                                + (f"@{version.replace('+', '%2B').replace(':', '%3A')}" if version else ""),
        }],
    }
    if version:
        entry["versionInfo"] = version
    if constraint:
        entry["comment"] = f"needed: {constraint}"
    return entry


def file_entry(folder, path):
    name = "./" + path.relative_to(folder).as_posix()
    data = path.read_bytes()
    return {
        "SPDXID": identifier("File", name[2:].replace("/", "-")),
        "fileName": name,
        "checksums": [{"algorithm": kind, "checksumValue": digest(kind.lower(), data)} for kind in ("SHA1", "SHA256")],
        "licenseConcluded": LICENCE,
        "licenseInfoInFiles": [LICENCE],
        "copyrightText": COPYRIGHT,
    }


def document(package):
    fields = dict(line.split(": ", 1) for line in
                  output("dpkg-deb", "-f", package, "Package", "Version", "Architecture", "Depends").splitlines())
    distribution = re.search(r'^ID="?(\w+)', pathlib.Path("/etc/os-release").read_text(encoding="utf-8"), re.MULTILINE).group(1)
    depends = [dependency(clause, distribution) for clause in sorted(fields.get("Depends", "").split(", ")) if clause]
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(["dpkg-deb", "-x", package, folder], check=True)
        paths = sorted(path for path in pathlib.Path(folder).rglob("*") if path.is_file() and not path.is_symlink())
        files = [file_entry(folder, path) for path in paths]
    whole = digest("sha256", pathlib.Path(package).read_bytes())
    own = identifier("Package", fields["Package"])
    name = f"{fields['Package']}_{fields['Version']}_{fields['Architecture']}"
    sums = "".join(sorted(file["checksums"][0]["checksumValue"] for file in files))

    def relation(subject, kind, other):
        return {"spdxElementId": subject, "relationshipType": kind, "relatedSpdxElement": other}

    return {
        "spdxVersion": "SPDX-2.3",
        "dataLicense": "CC0-1.0",
        "SPDXID": "SPDXRef-DOCUMENT",
        "name": name,
        "documentNamespace": f"https://zelvia.example.org/spdx/{name}-{whole}",
        "creationInfo": {"created": released(), "creators": ["Organization: The Zelvia authors", "Tool: sbom.py"]},
        "packages": [{
            "SPDXID": own,
            "name": fields["Package"],
            "versionInfo": fields["Version"],
            "packageFileName": pathlib.Path(package).name,
            "supplier": "Organization: The Zelvia authors",
            "downloadLocation": "NOASSERTION",
            "filesAnalyzed": True,
            "packageVerificationCode": {"packageVerificationCodeValue": digest("sha1", sums.encode())},
            "checksums": [{"algorithm": "SHA256", "checksumValue": whole}],
            "licenseConcluded": LICENCE,
            "licenseDeclared": LICENCE,
            "licenseInfoFromFiles": [LICENCE],
            "copyrightText": COPYRIGHT,
            "primaryPackagePurpose": "APPLICATION",
        }] + depends,
        "files": files,
        "relationships": [relation("SPDXRef-DOCUMENT", "DESCRIBES", own)]
        + [relation(own, "CONTAINS", file["SPDXID"]) for file in files]
        + [relation(own, "DEPENDS_ON", entry["SPDXID"]) for entry in depends],
    }


if len(sys.argv) != 2:
    sys.exit("usage: sbom.py PACKAGE.deb")
json.dump(document(sys.argv[1]), sys.stdout, ensure_ascii=False, indent=2)
print()
