#!/usr/bin/python3
"""Reads every window of the program over the accessibility bus, as a screen reader does.

usage: screenreader.py SHOW_WINDOWS

SHOW_WINDOWS shows one window after the other. Each part of a window that can take the focus must have
a name and a role. Runs on a screen and a bus of its own.
"""

import os
import shutil
import subprocess
import sys
import time

LONGEST_WAIT = 10  # seconds, for a window to appear on the bus

# Parts that Qt makes inside a widget: the list of a combo box, the field of an editable one, and the
# parts of a calendar. Their widget is named.
INNER = {('combo box', 'list'), ('combo box', 'text')}
# Windows that only show something.
WITHOUT_FOCUS = {'frmGoOnline', 'frmSplash'}
# An area that scrolls is a "filler" for Qt, so that role counts.
NO_ROLE = {'invalid', 'unknown', 'redundant object'}


def on_a_bus_of_its_own(arguments):
    """Runs this script again, with a screen and a bus."""
    for program in ('Xvfb', 'dbus-run-session'):
        if not shutil.which(program):
            print(f'{program} is not installed')
            return 1
    reading, writing = os.pipe()
    screen = subprocess.Popen(['Xvfb', '-displayfd', str(writing), '-screen', '0', '1920x1080x24'],
                              pass_fds=[writing], stderr=subprocess.DEVNULL)
    os.close(writing)
    try:
        number = os.fdopen(reading).readline().strip()
        if not number:
            print('Xvfb did not start')
            return 1
        environment = dict(os.environ, DISPLAY=f':{number}', QT_QPA_PLATFORM='xcb',
                           QT_LINUX_ACCESSIBILITY_ALWAYS_ON='1', READ_WINDOWS='1')
        return subprocess.run(['dbus-run-session', '--', sys.executable, __file__, *arguments],
                              env=environment).returncode
    finally:
        screen.terminate()
        screen.wait()


def application_of(process):
    """The process on the bus, once it is there."""
    from gi.repository import Atspi
    end = time.monotonic() + LONGEST_WAIT
    while time.monotonic() < end:
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(i)
            if application and application.get_process_id() == process.pid:
                return application
        time.sleep(0.02)
    sys.exit('The program does not appear on the accessibility bus.')


def parts_of(part):
    for i in range(part.get_child_count()):
        child = part.get_child_at_index(i)
        if child:
            yield part, child
            yield from parts_of(child)


def label_of(part):
    """The text of the label that belongs to a part."""
    from gi.repository import Atspi
    for relation in part.get_relation_set():
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
            return ' '.join(relation.get_target(i).get_name()
                            for i in range(relation.get_n_targets()))
    return ''


def fault_of(parent, part):
    from gi.repository import Atspi
    role = part.get_role_name()
    if (parent.get_role_name(), role) in INNER:
        return ''
    if role in NO_ROLE:
        return f'has the role "{role}"'
    # The name of a combo box is its value.
    name = '' if part.get_role() == Atspi.Role.COMBO_BOX else part.get_name()
    if not (name or label_of(part) or part.get_description()).strip():
        return f'a {role} without a name'
    return ''


def read_windows(program):
    import gi
    gi.require_version('Atspi', '2.0')
    from gi.repository import Atspi
    shown = subprocess.Popen([program], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
    windows = parts = faults = 0
    for line in shown.stdout:
        window = line.strip()
        windows += 1
        found = 0
        for parent, part in parts_of(application_of(shown)):
            if not part.get_state_set().contains(Atspi.StateType.FOCUSABLE):
                continue
            found += 1
            fault = fault_of(parent, part)
            if fault:
                faults += 1
                print(f'{window}: {fault}, in "{parent.get_name()}" ({parent.get_role_name()})')
        if not found and window not in WITHOUT_FOCUS:
            faults += 1
            print(f'{window}: nothing takes the focus')
        parts += found
        shown.stdin.write('\n')
        shown.stdin.flush()
    status = shown.wait()
    print(f'{windows} windows, {parts} parts that take the focus, {faults} faults')
    return 1 if faults or status or windows < 30 or parts < 200 else 0


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    if os.environ.get('READ_WINDOWS'):
        return read_windows(sys.argv[1])
    try:
        import gi
        gi.require_version('Atspi', '2.0')
    except (ImportError, ValueError) as error:
        print(error)
        return 1
    return on_a_bus_of_its_own(sys.argv[1:])


sys.exit(main())
