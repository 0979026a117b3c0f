#!/usr/bin/env bash
# Makes certificates of a broker and a bridge, and files with names and passwords: make_certificates.sh FOLDER
cd "$1"
key() { openssl ecparam -genkey -name prime256v1 -noout -out "$1.key"; }
sign() {
  key "$1"
  openssl req -new -key "$1.key" -subj "/CN=$2" -out "$1.csr"
  openssl x509 -req -in "$1.csr" -CA ca.crt -CAkey ca.key -CAcreateserial -days 2 -out "$1.crt"
}
set -e
key ca
openssl req -x509 -new -key ca.key -subj /CN=ca -days 2 -out ca.crt
sign broker localhost
sign bridge bridge
mosquitto_passwd -b -c passwords hall secret
chmod a+r ./*
echo hall > user; echo secret > password; echo wrong > wrong
