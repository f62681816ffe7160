out/brace_f4.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/t/img.${F4}.exr"	)
}
out/brace_f.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/t/img.${F}.exr"	)
}
out/ff.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/t/img.$FF.exr"	)
}
out/brace_ff.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/t/img.${FF}.exr"	)
}
out/lower_ff.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/t/img.$ff.exr"	)
}
out/bare_f.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/t/img.$F.exr"	)
}
out/end_f.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/t/img.$F"	)
}
out/first_only.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/$F4/img.$F4.exr"	)
}
out/one_digit.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/t/img.$F10.exr"	)
}
out/longer_name.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/$FOO/img.exr"	)
}
out/lower_f4.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/t/img.$f4.exr"	)
}
out/other_digit.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/t/img.$F٣.exr"	)
}
out/only_token.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/t/$F4"	)
}
out/movie.parm {
vm_picture	[ 0	locks=0 ]	(	"/movies/shot.mov"	)
}
out/braces.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/${HIPNAME}/a.exr"	)
}
out/spaced.parm {
vm_picture	[ 0	locks=0 ]	(	  "  $HIP/t/spaced.exr  "  	)
}
out/unquoted.parm {
vm_picture	[ 0	locks=0 ]	(	$HIP/t/unquoted.exr	)
}
out/take.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/t/$ACTIVETAKE/`chsop("take")`.exr"	)
}
out/chs.parm {
vm_picture	[ 0	locks=0 ]	(	"`chs("../picture")`"	)
}
out/testfile.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/testfile.exr"	)
}
out/empty.parm {
vm_picture	[ 0	locks=0 ]	(	""	)
}
out/lone_quote.parm {
vm_picture	[ 0	locks=0 ]	(	"	)
}
out/other_name.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/[ picture]/a.exr"	)
}
out/no_close.parm {
vm_picture	(	"$HIP/t/a.exr"
}
out/no_value.parm {
vm_picture	(	)
}
out/no_open.parm {
vm_picture	)
}
out/prepend.parm {
RS_outputFileNamePrefix	[ 0	locks=0 ]	(	"pre.$F4.exr"	)
vm_picture	[ 0	locks=0 ]	(	"$HIP/t/"	)
}
