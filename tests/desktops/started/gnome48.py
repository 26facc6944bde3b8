from started import gnome_wayland


class This(gnome_wayland.This):
    title = "GNOME 48 (Wayland)"
    suite = "trixie"
