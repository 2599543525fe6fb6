PS1='\[\e[34m\]\W\[\e[0m\] $$ '
alias ls='ls --color=auto'
