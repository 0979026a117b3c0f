#!/usr/bin/env bash
# Installs and removes two versions of a package with the scripts and the service alone, in a folder as root, and says
# "all done" if the service was enabled when it should be: package_service.sh FOLDER_OF_THE_PACKAGE/
set -e
made=$(mktemp -d) && trap 'rm -rf "$made"' EXIT && cd "$made"
mkdir -p deb/DEBIAN deb/lib/systemd/system
cp "$1"postinst "$1"prerm "$1"postrm deb/DEBIAN
cp "$1"advanced-control-bridge.service deb/lib/systemd/system
for version in 1 2; do
  printf '%s\n' 'Package: b' "Version: $version" 'Architecture: all' 'Description: b' \
    'Maintainer: b <b@example.org>' > deb/DEBIAN/control
  dpkg-deb --root-owner-group -b deb $version.deb
done
begin() {
  rm -rf root
  mkdir -p root/var/lib/dpkg/updates root/var/lib/dpkg/info root/etc/advanced-control
  touch root/var/lib/dpkg/status
}
package() {
  dpkg --root="$made/root" --force-script-chrootless,not-root,unsafe-io "$@"
}
service() { systemctl --root="$made/root" "$1" advanced-control-bridge.service; }
is_disabled() { ! service is-enabled; }
is_purged() { ! ls root/etc/systemd/system/*.wants/*; }
begin; package -i 1.deb; is_disabled
touch root/etc/advanced-control/projectors.json; package -i 2.deb; is_disabled
service enable; package -i 2.deb; service is-enabled
package -P b; is_purged
begin; touch root/etc/advanced-control/projectors.json; package -i 1.deb; service is-enabled
service disable; package -i 2.deb; is_disabled
package -r b; package -i 2.deb; is_disabled
echo all done
