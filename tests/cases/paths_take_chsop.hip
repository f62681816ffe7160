take name Main x
out/a.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/a/`chsop("take")`.$F4.exr"	)
}
