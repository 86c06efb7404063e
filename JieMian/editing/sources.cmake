# Editing dialogs, panels and canvas tools: text, move, array, alignment,
# drawing tools and the selection frame.
