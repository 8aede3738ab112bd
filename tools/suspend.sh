#!/bin/sh
# Started by xautolock when the screens sleep with suspend chosen; the shell rewrites it at start.
sudo systemctl suspend
