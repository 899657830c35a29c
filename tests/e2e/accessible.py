"""Reading what a program shows through its accessibility tree, and waiting for it.

Nodes are asked afresh each time: nothing here runs the loop that would keep a cache of them up to date.
"""
import time

PATIENCE = 20  # seconds that anything may take on a busy machine


class Failure(AssertionError):
    pass


def wait_for(condition, what, patience=PATIENCE):
    """The first true answer of `condition`. A node that has gone, or a program that is busy, counts as not yet."""
    deadline = time.monotonic() + patience
    trouble = ''
    while True:
        try:
            answer = condition()
            if answer:
                return answer
        except Exception as error:  # the accessibility library raises its own kinds
            trouble = f' ({error})'
        if time.monotonic() > deadline:
            raise Failure(f'waited {patience} s for {what}{trouble}')
        time.sleep(0.03)


def children(node):
    return [child for i in range(node.get_child_count()) if (child := node.get_child_at_index(i)) is not None]


def walk(node):
    yield node
    for child in children(node):
        yield from walk(child)


def states(node):
    return {state.value_nick for state in node.get_state_set().get_states()}


def value_of(node):
    return node.get_current_value()


def extents(node):
    rect = node.get_extents(0)  # on the screen
    return rect.x, rect.y, rect.width, rect.height


def outline(node, depth=0):
    """The tree as text, for failures."""
    try:
        place = extents(node) if 'showing' in states(node) else 'not on screen'
        line = f'{"  " * depth}{node.get_role_name()} "{node.get_name()}" {place}'
        return '\n'.join([line] + [outline(child, depth + 1) for child in children(node)])
    except Exception as error:
        return f'{"  " * depth}<{error}>'
