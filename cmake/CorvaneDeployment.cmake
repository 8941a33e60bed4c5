# Where the servers of a deployment live. Nothing else in the tree knows a host name.
# The defaults are reserved example hosts; the demo and development presets point at loopback.
set(CORVANE_SERVER_URL "https://server.corvane.example" CACHE STRING
    "Base URL of the central server (REST and signaling)")
set(CORVANE_ADMIN_URL "https://admin.corvane.example" CACHE STRING
    "Administration web page")
set(CORVANE_DOWNLOAD_URL "https://download.corvane.example" CACHE STRING
    "Download site that publishes the update manifest")
set(CORVANE_PUBLIC_ADDRESS_URL "https://address.corvane.example" CACHE STRING
    "Service that answers with the caller's public address as plain text")
set(CORVANE_STUN_ADDRESS "192.0.2.1" CACHE STRING
    "Numeric address of the STUN server for NAT detection")
set(CORVANE_STUN_SERVERS "stun1.corvane.example;stun2.corvane.example" CACHE STRING
    "The two STUN hosts of the peer connection")
set(CORVANE_TURN_HOST "turn.corvane.example" CACHE STRING
    "TURN host of the peer connection")

list(GET CORVANE_STUN_SERVERS 0 CORVANE_STUN_SERVER_1)
list(GET CORVANE_STUN_SERVERS 1 CORVANE_STUN_SERVER_2)
