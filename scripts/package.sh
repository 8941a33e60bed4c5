#!/usr/bin/env bash
# Makes the Debian package of this system's Debian, and checks it. Says in its last line where the
# package is.
set -euo pipefail
cd "$(dirname "$0")/.."

# The folders in the package get the permissions that they get here.
umask 022
scripts/bootstrap.sh package
cmake --preset package
cmake --build --preset package
rm -rf build/package/package
(cd build/package && cpack)
desktop-file-validate assets/freedesktop/example.corvane.Client.desktop
appstreamcli validate --no-net build/package/freedesktop/example.corvane.Client.metainfo.xml
package=$(echo build/package/package/corvane_*.deb)
# There is no bug in a tracker that Debian would know of, and lintian needs no root's permission.
lintian --allow-root --fail-on error --suppress-tags initial-upload-closes-no-bugs "$package"
echo "$package"
