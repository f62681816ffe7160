frange 10 50
set -g _HIP_SAVEVERSION = '19.5.303'
obj/box1.parm {
frange	[ 0	locks=0 ]	(	1	240	)
frange1	[ 0	locks=0 ]	(	0	)
}
out/f_plain.parm {
trange	[ 0	locks=0 ]	(	"normal"	)
trange	[ 0	locks=0 ]	(	"off"	)
f	[ 0	locks=0 ]	(	2	30	3	)
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/a.$F4.exr"	)
}
out/f_channel.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/b.$F4.exr"	)
trange	[ 0	locks=0 ]	(	"on"	)
f	[ 0	locks=0 ]	(	[ f1	1 ] 	[ f2	240 ] 	1	)
}
out/f_channel2.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/c.$F4.exr"	)
trange	[ 0	locks=0 ]	(	"on"	)
f	[ 0	locks=0 ]	(	[ f1	3 ] 	48	2	)
}
out/f_two.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/d.$F4.exr"	)
trange	[ 0	locks=0 ]	(	"normal"	)
f	[ 0	locks=0 ]	(	1	24	)
}
out/f_before.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/e.$F4.exr"	)
f	[ 0	locks=0 ]	(	1	24	1	)
trange	[ 0	locks=0 ]	(	"normal"	)
}
out/f_off.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/g.$F4.exr"	)
trange	[ 0	locks=0 ]	(	"off"	)
f	[ 0	locks=0 ]	(	1	24	1	)
}
out/f_none.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/h.$F4.exr"	)
}
