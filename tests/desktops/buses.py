"""The session's message buses."""

from session import need

POLICY = """<policy context="default">
<allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/>
</policy>"""


def start(session, has_services):
    """The user's bus and, with nobody on it, the system's. The desktop's own services are started by the first where it has any."""
    folders = ["/usr/local/share/dbus-1/services"] + (["/usr/share/dbus-1/services"] if has_services else [])
    for name, variable, offered in (("bus", "DBUS_SESSION_BUS_ADDRESS", folders), ("system-bus", "DBUS_SYSTEM_BUS_ADDRESS", [])):
        address = f"unix:path={session.run_folder}/{name}"
        services = "".join(f"<servicedir>{folder}</servicedir>" for folder in offered)
        file = session.run_folder / f"{name}.conf"
        file.write_text(f"<busconfig><type>session</type><listen>{address}</listen>{services}{POLICY}</busconfig>")
        session.environment[variable] = address
        session.start(name, "dbus-daemon", "--nofork", "--config-file", str(file))
        need((session.run_folder / name).exists, "no message bus")


def tell_services(session):
    """Programs that the bus starts come up on this desktop."""
    names = ("DISPLAY", "WAYLAND_DISPLAY", "XDG_CURRENT_DESKTOP", "XDG_SESSION_TYPE", "XDG_DATA_DIRS", "XAUTHORITY")
    session.run("dbus-update-activation-environment", *(name for name in names if name in session.environment))


def call(session, name, path, method, *words):
    return session.run("gdbus", "call", "--session", "--dest", name, "--object-path", path, "--method", method, *words)
