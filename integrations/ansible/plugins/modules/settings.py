#!/usr/bin/python
# -*- coding: utf-8 -*-

# Copyright: (c) 2026, Advanced Control maintainers. All rights reserved.

from __future__ import absolute_import, division, print_function

__metaclass__ = type

DOCUMENTATION = r'''
module: settings
short_description: Bring settings of projectors into a state
version_added: 1.0.0
description:
  - Reads settings of projectors with C(acctl) and changes those that differ.
  - Warns of projectors that are only simulated.
  - Fails if a projector lacks a setting, refuses a value or does not answer; the other projectors are changed all the
    same. If a value is wrong, none is changed.
author:
  - Advanced Control maintainers (@advancedcontrol)
options:
  projectors:
    description:
      - The projectors, as C(acctl) selects them. A name, a pattern or C(@TAG), several separated by commas.
    required: true
    type: str
  settings:
    description:
      - Keys or short names of settings, each with its value. The value is a number as the dialog shows it, the text of
        an entry or its code.
      - Quote C(on) and C(off), which are truth values otherwise.
    required: true
    type: dict
  where:
    description: Only projectors in this state, such as C(power=on lamp-hours>1500).
    type: str
  wait:
    description:
      - How long to wait until the state is reached, such as C(90s).
      - Settings that follow C(power) are sent when the projector is on, so C(power) is best the first.
    type: str
  profiles:
    description: The profile file.
    type: path
  connect:
    description: The address of the one projector, instead of its profile's.
    type: str
  timeout:
    description: Seconds for one answer.
    type: float
  retries:
    description: How often a projector that does not answer is tried again.
    type: int
    default: 0
  executable:
    description: The program.
    type: path
    default: acctl
attributes:
  check_mode:
    support: full
    description: Reads the projectors and changes nothing.
  diff_mode:
    support: full
    description: Shows the values before and after.
'''

EXAMPLES = r'''
- name: Turn a building off
  advancedcontrol.projectors.settings:
    projectors: '@building-3'
    settings:
      power: standby

- name: Set up a lecture hall
  advancedcontrol.projectors.settings:
    projectors: Lecture hall
    settings:
      input: hdmi
      brightness: -3
      active-iris: theater
'''

RETURN = r'''
projectors:
  description: What C(acctl) reported for each projector, as its JSON schema describes.
  returned: always
  type: list
  elements: dict
'''

import json

from ansible.module_utils.basic import AnsibleModule


WRONG_USE = 2  # acctl has sent nothing to any projector


def changes_of(projectors):
    return [change for projector in projectors for change in projector.get('changes', [])]


def options_of(params):
    options = []
    for name in ('where', 'wait', 'profiles', 'connect', 'timeout', 'retries'):
        if params[name]:
            options += ['--' + name, str(params[name])]
    return options


def word_of(value):
    """A value as acctl takes it; a truth value is most likely an unquoted on or off."""
    if isinstance(value, bool):
        return 'on' if value else 'off'
    return str(value)


def run(module, dry_run):
    """What acctl reports for each projector, and what failed on some of them, or None."""
    command = [module.params['executable'], '-o', 'json', 'set', module.params['projectors']]
    command += [key + '=' + word_of(value) for key, value in module.params['settings'].items()]
    command += options_of(module.params)
    if dry_run:
        command.append('--dry-run')
    code, output, errors = module.run_command(command)
    try:
        report = json.loads(output)
    except ValueError:
        module.fail_json(msg=errors or 'acctl printed nothing', rc=code)
    failure = dict(msg=errors.strip(), rc=code) if code != 0 else None
    if code == WRONG_USE:
        module.fail_json(projectors=report['projectors'], **failure)
    return report['projectors'], failure


def differs(change):
    if change['outcome'] in ('refused', 'busy', 'notDone'):
        return False
    after = change.get('after') or change.get('aim')
    before = change.get('before')
    return after is None or before is None or before['code'] != after['code']


def shown_name(projector):
    return projector['name'] + (' (simulated)' if projector['simulated'] else '')


def state_of(projectors, member):
    lines = []
    for projector in projectors:
        for change in projector.get('changes', []):
            value = change.get(member) or {}
            lines.append('%s: %s=%s\n' % (shown_name(projector), change['key'], value.get('code', '?')))
    return ''.join(lines)


def warn_of_simulations(module, projectors):
    names = [projector['name'] for projector in projectors if projector['simulated']]
    if names:
        module.warn('only simulated: ' + ', '.join(names))


def main():
    module = AnsibleModule(
        argument_spec=dict(
            projectors=dict(type='str', required=True),
            settings=dict(type='dict', required=True),
            where=dict(type='str'),
            wait=dict(type='str'),
            profiles=dict(type='path'),
            connect=dict(type='str'),
            timeout=dict(type='float'),
            retries=dict(type='int', default=0),
            executable=dict(type='path', default='acctl'),
        ),
        supports_check_mode=True,
    )
    projectors, failure = run(module, dry_run=True)
    changed = any(differs(change) for change in changes_of(projectors))
    if (changed or module.params['wait']) and not module.check_mode:
        projectors, failure = run(module, dry_run=False)
        changed = any(differs(change) for change in changes_of(projectors))
        diff = dict(before=state_of(projectors, 'before'), after=state_of(projectors, 'after'))
    else:
        diff = dict(before=state_of(projectors, 'before'), after=state_of(projectors, 'aim'))
    warn_of_simulations(module, projectors)
    result = dict(changed=changed, projectors=projectors)
    if module._diff:
        result['diff'] = diff
    if failure:
        result.update(failure)
        module.fail_json(**result)
    module.exit_json(**result)


if __name__ == '__main__':
    main()
